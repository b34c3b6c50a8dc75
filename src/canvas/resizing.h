// SPDX-License-Identifier: MIT
// Resizing by a handle: the control changes at once, its element at the release.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

void Anchor_MouseDown(CanvasParts& parts, Control& anchor, const Mouse& mouse);
void Anchor_MouseMove(CanvasParts& parts, Control& anchor, const Mouse& mouse);
void Anchor_MouseUp(CanvasParts& parts, Control& anchor, const Mouse& mouse);

}  // namespace ornavo
