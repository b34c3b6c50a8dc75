// SPDX-License-Identifier: MIT
// The keys of the canvas.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// Handles a key press: a Qt::Key and a ShiftMask. True if the key has a meaning on the canvas.
bool Form_KeyDown(CanvasParts& parts, int qtKey, int shift);

}  // namespace ornavo
