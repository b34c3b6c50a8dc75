// SPDX-License-Identifier: MIT
// The rows of an element and of a corner of the shape.
#pragma once

#include "document/dblayouts.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// Whether the control of that name shows an element.
bool ShowsElement(std::string_view controlName);
/// `controlName` is that of the control that shows the element.
Sheet ElementSheet(std::string_view controlName, const dbLayoutElement& element);
Sheet PointSheet(const dbPoint& point);

}  // namespace ornavo
