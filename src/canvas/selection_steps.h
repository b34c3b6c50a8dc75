// SPDX-License-Identifier: MIT
// Moves the selection from element to element by a key.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// Selects the next (`step` 1) or the previous (-1) visible element in the layout's order, cyclically, and
/// changes no element. The property sheet follows after tmrShowProperties. Does nothing during a drag or if
/// no element is visible.
void StepSelection(CanvasParts& parts, int step);

}  // namespace ornavo
