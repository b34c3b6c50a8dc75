// SPDX-License-Identifier: MIT
// A click on a control of the panel's sample opens the sheet of its family. It has no element, and no
// handles.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// Released over the control; released elsewhere nothing happens.
void Sample_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse);

}  // namespace ornavo
