// SPDX-License-Identifier: MIT
// Removes the selected element or corner from the layout.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// Removes the selected element or corner; something must be selected. Does nothing for a standard element or
/// any other control.
void RemoveSelected(CanvasParts& parts);

}  // namespace ornavo
