// SPDX-License-Identifier: MIT
// Adding, deleting and restacking elements. Deleting and restacking number the orders anew, from 1.
#pragma once

#include "document/dblayouts.h"

namespace ornavo {

/// The Order that puts a new element on top of all the others.
std::int32_t GetTopOrder(const dbLayout& layout);

/// Removes the element and renumbers the rest. Failure 9 if there is no such element.
void DeleteElement(dbLayout& layout, std::string_view key);

/// Adds an element at the end. The key is "Button", "Graphic", "Volume" or "Info" for the types 1 to 4,
/// followed by the lowest number from 1 that is free. Null for any other type.
dbLayoutElementRef AddNumberedElement(dbLayout& layout, std::int32_t order, std::int32_t elementType);

/// Move the element to the top or to the bottom. Failure 9 if there is no such element.
void BringElementToFront(dbLayout& layout, std::string_view key);
void SendElementToBack(dbLayout& layout, std::string_view key);

}  // namespace ornavo
