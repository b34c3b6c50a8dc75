// SPDX-License-Identifier: MIT
// The rows of an element and of a corner of the shape.
#pragma once

#include "document/dblayouts.h"
#include "properties/sheet_row.h"
#include "render/element_kinds.h"

namespace ornavo {

/// Of an element on a control of that kind.
Sheet ElementSheet(ElementKind kind, const dbLayoutElement& element);
Sheet PointSheet(const dbPoint& point);

}  // namespace ornavo
