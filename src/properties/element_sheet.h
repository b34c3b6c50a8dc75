// SPDX-License-Identifier: MIT
// The property sheets of an element and of a corner.
#pragma once

#include "document/dblayouts.h"
#include "properties/sheet_row.h"
#include "render/element_kinds.h"

namespace ornavo {

/// The sheet of an element whose control has this kind.
Sheet ElementSheet(ElementKind kind, const dbLayoutElement& element);
Sheet PointSheet(const dbPoint& point);

}  // namespace ornavo
