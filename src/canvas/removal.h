// SPDX-License-Identifier: MIT
// The selected element or corner is removed from the layout.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

/// The standard elements stay, and so does what is no element and no corner.
void RemoveSelected(CanvasParts& parts);

}  // namespace ornavo
