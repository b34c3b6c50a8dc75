// SPDX-License-Identifier: MIT
// One named preference of a skin, and the list of them.
#pragma once

#include <cstdint>
#include <string>

#include "base/keyed_collection.h"
#include "base/value.h"

namespace ornavo {

/// A named preference.
struct dbSkinPref {
    std::string Key;
    FontRef Font;
    double MaxValue = 0, MinValue = 0;
    std::string Comment;
    std::int32_t PrefType = 0;
    Value value;  // empty, a boolean, an integer, a double or a text
    std::string Caption;
};
using dbSkinPrefRef = std::shared_ptr<dbSkinPref>;

/// The preferences of a skin, in the order of its file.
class dbSkinPrefs : public KeyedCollection<dbSkinPref> {
public:
    dbSkinPrefRef Add(std::string_view key, std::string_view caption, Value value, std::int32_t prefType);
    void AddObject(dbSkinPrefRef pref);
};

}  // namespace ornavo
