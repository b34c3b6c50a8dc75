// SPDX-License-Identifier: MIT
// Clicks on a control of the sample panel, which open the sheet of its family. Such a control has no element
// and no handles.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// Does nothing if the button was released outside of the control.
void Sample_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse);

}  // namespace ornavo
