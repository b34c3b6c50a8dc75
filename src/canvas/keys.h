// SPDX-License-Identifier: MIT
// The keyboard of the canvas as a table.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// A key as Qt has it, and a ShiftMask. True if it has a meaning here.
bool Form_KeyDown(CanvasParts& parts, int qtKey, int shift);

}  // namespace ornavo
