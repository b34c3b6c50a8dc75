// SPDX-License-Identifier: MIT
// Access to the document's fields by name. Each class has a table, and a field is one row of it.
#pragma once

#include <span>
#include <string_view>

#include "base/font.h"
#include "base/value.h"
#include "document/dbskin.h"

namespace ornavo {

/// A field of a class T: how it is read, set, loaded and saved. `saved`: the field has a line in the file.
template <class T>
struct Field {
    std::string_view name;
    Value (*get)(const T&);
    void (*set)(T&, const Value&);  // converts; on a Failure the field is unchanged
    bool saved;
    bool (*take)(T&, std::string_view bytes);      // TakePlain; false: use `set`
    bool (*append)(const T&, std::string& bytes);  // AppendValue: the value in the form of the file
};

/// The fields of T in the order of the table. T is Font, dbLayoutElement, dbPoint, dbLayout, dbSkinPref or
/// dbSkin.
template <class T>
std::span<const Field<T>> Fields();
template <class T>
const Field<T>* FindField(std::string_view name);  // without regard to case; null if unknown
template <class T>
Value GetField(const T& object, std::string_view name);  // Failure 438 if unknown
template <class T>
void SetField(T& object, std::string_view name, const Value& value);

}  // namespace ornavo
