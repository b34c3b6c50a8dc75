// SPDX-License-Identifier: MIT
// Press, drag and release of the controls that show an element: one table of families, one road.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// Selects; begins a drag, or with the right button pops up the element's menu. The handlers serve each
/// family: Element, pMain, pInfo, tbx_Search, Scrollframe and its ScrollBar.
void Element_MouseDown(CanvasParts& parts, Control& control, const Mouse& mouse);
void Element_MouseMove(CanvasParts& parts, Control& control, const Mouse& mouse);
void Element_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse);

/// Ends a drag whose release will not be heard; what was dragged stays where it is. Nothing without a drag.
void FinishDrag(CanvasParts& parts);

}  // namespace ornavo
