// SPDX-License-Identifier: MIT
// Adds new elements and clones to the layout.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// Adds an element of type 1 to 4 with its defaults, on top, and selects it.
void AddElement(CanvasParts& parts, int elementType);
/// Adds a clone of the selected element at the same place, on top, and selects it.
void CloneElement(CanvasParts& parts);

}  // namespace ornavo
