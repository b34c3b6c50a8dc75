// SPDX-License-Identifier: MIT
// Elements added, deleted and stacked anew. The orders of a layout are dense from 1 after each of these.
#pragma once

#include "document/dblayouts.h"

namespace ornavo {

/// The Order that puts a new element on top of all others.
std::int32_t GetTopOrder(const dbLayout& layout);
/// ControlIndex of the first element of that Order; 0 where there is none.
std::int32_t GetControlIndex(const dbLayout& layout, std::int32_t order);

/// Failure 9 where there is no such element.
void DeleteElement(dbLayout& layout, std::string_view key);

/// A new element at the end. Its key is "Button", "Graphic", "Volume" or "Info", by the type 1 to 4, and the
/// lowest number from 1 with which the key is free. Null for any other type.
dbLayoutElementRef AddNumberedElement(dbLayout& layout, std::int32_t order, std::int32_t elementType);

/// Failure 9 where there is no such element.
void BringElementToFront(dbLayout& layout, std::string_view key);
void SendElementToBack(dbLayout& layout, std::string_view key);

}  // namespace ornavo
