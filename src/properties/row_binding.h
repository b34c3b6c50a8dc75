// SPDX-License-Identifier: MIT
// A row is bound to the model by its key alone: the name of a field, or a preference's key, "." and a member.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "document/dbskin.h"

namespace ornavo {

/// What the rows of an element or a corner edit; preference rows do without.
using BoundObjectRef = std::variant<std::monostate, dbLayoutElementRef, dbPointRef>;

std::string_view GetClass(std::string_view key);   // before the first "."; "" without one
std::string_view GetMethod(std::string_view key);  // after it; the whole key without one

/// The field that the key names, of the bound object or of a preference of the current skin. Failure 91 where
/// nothing is bound, 9 where there is no such preference, 438 where there is no such field.
Value GetRowValue(const BoundObjectRef& bound, std::string_view key);
/// Converts as every assignment to a field does: a Failure leaves the field as it was.
void SetRowValue(const BoundObjectRef& bound, std::string_view key, const Value& value);

}  // namespace ornavo
