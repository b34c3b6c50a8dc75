// SPDX-License-Identifier: MIT
// Tags, renumbering and deletion of the corners of a layout's shape.
#pragma once

#include <string>
#include <string_view>

#include "document/dblayouts.h"

namespace ornavo {

/// The tag of a corner is "K" and its Order; OrderOfTag gives the Order back, 0 if no number follows the
/// first character.
std::string TagOfPoint(std::int32_t order);
std::int32_t OrderOfTag(std::string_view tag);

/// Numbers the orders from 1, in the sequence of the collection.
void RenumberPoints(dbPoints& points);
/// Removes the corner with this tag, and renumbers the others and their keys from 1. Does nothing if there is
/// no such corner or the shape has fewer than 3.
void DeleteShapePoint(dbLayout& layout, std::string_view tag);

}  // namespace ornavo
