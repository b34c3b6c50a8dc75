// SPDX-License-Identifier: MIT
// A new element or a clone: numbered alike, composed and selected alike.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// A new element of type 1 to 4 with its defaults, on top, selected.
void AddElement(CanvasParts& parts, int elementType);
/// A clone of the selected element, exactly over it, on top, selected.
void CloneElement(CanvasParts& parts);

}  // namespace ornavo
