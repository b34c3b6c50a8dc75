// SPDX-License-Identifier: MIT
// The selection goes from element to element by a key.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// Selects the shown element that is next (`step` 1) or before (-1) in the layout's order, round and round,
/// and writes nothing. The sheet follows in its own time. Nothing during a drag, or where no element is
/// shown.
void StepSelection(CanvasParts& parts, int step);

}  // namespace ornavo
