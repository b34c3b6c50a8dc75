// SPDX-License-Identifier: MIT
// What the loader tells of the lines of a settings file, to somebody who wants to know what became of them.
#pragma once

#include <memory>
#include <string_view>
#include <variant>

#include "document/dbskin.h"

namespace ornavo {

/// An object that is open while a file is read; what isn't a part of the skin afterwards is lost.
using LoadedObject = std::variant<std::monostate, dbSkin*, dbSkinPrefRef, FontRef, std::shared_ptr<dbLayouts>,
                                  dbLayoutRef, std::shared_ptr<dbPoints>, dbPointRef,
                                  std::shared_ptr<dbLayoutElements>, dbLayoutElementRef>;

enum class LineFate {
    Nothing,   // it has no tag, or one of a header or a comment
    Assigned,  // to a field of the object
    Refused,   // the object's field can't hold the value
    NoField,   // the object has no such field, or nothing is open that has fields
    Opened,    // the object begins
    Closed,    // the object ends
    Unknown    // a tag of structure that has no meaning
};

struct LineReport {
    int number;  // from 1
    LineFate fate;
    std::string_view line;   // without its end
    std::string_view tag;    // without the brackets
    std::string_view value;  // the bytes between the tags
    LoadedObject object;     // that the line concerns
    LoadedObject parent;     // of an object that begins
};

/// The texts of a report live as long as the bytes that are read.
class LoadObserver {
public:
    virtual ~LoadObserver() = default;
    virtual void Tell(const LineReport& report) = 0;
};

}  // namespace ornavo
