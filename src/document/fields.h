// SPDX-License-Identifier: MIT
// Every field of the document, reachable by its name: one table per class, a field is one line of it.
#pragma once

#include <span>
#include <string_view>

#include "base/font.h"
#include "base/value.h"
#include "document/dbskin.h"

namespace ornavo {

/// Saved: the field has a line in the file.
template <class T>
struct Field {
    std::string_view name;
    Value (*get)(const T&);
    void (*set)(T&, const Value&);  // converts; throws a Failure and leaves the field as it was
    bool saved;
    bool (*take)(T&, std::string_view bytes);      // the short road of TakePlain; false: set has to do it
    bool (*append)(const T&, std::string& bytes);  // the value in the form of the file, as AppendValue
};

/// T is Font, dbLayoutElement, dbPoint, dbLayout, dbSkinPref or dbSkin. In declaration order.
template <class T>
std::span<const Field<T>> Fields();
template <class T>
const Field<T>* FindField(std::string_view name);  // without regard to case; null if unknown
template <class T>
Value GetField(const T& object, std::string_view name);  // Failure 438 if unknown
template <class T>
void SetField(T& object, std::string_view name, const Value& value);

}  // namespace ornavo
