// SPDX-License-Identifier: MIT
// Corners of a layout's shape removed and renumbered. Orders are dense from 1 after each of these.
#pragma once

#include <string>
#include <string_view>

#include "document/dblayouts.h"

namespace ornavo {

/// The tag of a corner, "K" and its Order, and the way back; 0 for what is no such tag.
std::string TagOfPoint(std::int32_t order);
std::int32_t OrderOfTag(std::string_view tag);

/// Orders from 1 in the sequence of the collection.
void RenumberPoints(dbPoints& points);
/// Removes the corner that the tag names and renews all keys. A shape of fewer than 3 corners stays as it is,
/// and so does one that has no such corner.
void DeleteShapePoint(dbLayout& layout, std::string_view tag);

}  // namespace ornavo
