// SPDX-License-Identifier: MIT
// Binds a row to the model by its key: the name of a field, or a preference's key, "." and a member.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "document/dbskin.h"

namespace ornavo {

/// The element or corner whose fields are edited; rows of preferences do not need it.
using BoundObjectRef = std::variant<std::monostate, dbLayoutElementRef, dbPointRef>;

std::string_view GetClass(std::string_view key);   // the part before the first "."; "" if there is none
std::string_view GetMethod(std::string_view key);  // the part after it; the whole key if there is none

/// The field that the key names, of the bound object or of a preference of the current skin. Failure 91 if
/// nothing is bound, 9 if there is no such preference, 438 if there is no such field.
Value GetRowValue(const BoundObjectRef& bound, std::string_view key);
/// Converts the value to the field's type. On a Failure the field is unchanged.
void SetRowValue(const BoundObjectRef& bound, std::string_view key, const Value& value);

}  // namespace ornavo
