// SPDX-License-Identifier: MIT
// Pressing, dragging and releasing the controls of elements. One table serves all families.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// A press selects the control; then it begins a drag, or with the right button it opens the element's menu.
/// The handlers serve the families Element, pMain, pInfo, tbx_Search and Scrollframe with its ScrollBar.
void Element_MouseDown(CanvasParts& parts, Control& control, const Mouse& mouse);
void Element_MouseMove(CanvasParts& parts, Control& control, const Mouse& mouse);
void Element_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse);

/// Ends a drag whose release event will be missing; the dragged control stays where it is. Does nothing
/// without a drag.
void FinishDrag(CanvasParts& parts);

}  // namespace ornavo
