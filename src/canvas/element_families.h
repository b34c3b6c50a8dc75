// SPDX-License-Identifier: MIT
// The controls that show an element, on the canvas.
#pragma once

#include "canvas/canvas_parts.h"
#include "document/dblayouts.h"
#include "render/element_kinds.h"

namespace ornavo {

/// The control in the window that shows the element with the key; null where none does. That of an element
/// that is not visible is found too.
Control* ElementControl(LayoutHost& host, const std::string& key);
/// Whether the control stands for an element while the view shows none.
bool ElementsAreHidden(const Control& control);

/// Null where none is selected, and for a corner.
dbLayoutElementRef SelectedElement(const CanvasParts& parts);

/// What follows the selected control's bounds: the bar of a scroll frame.
void ScrollBarFollows(CanvasParts& parts);
/// The panel and the sample on it drawn anew at their size.
void PanelFollows(CanvasParts& parts);
/// The selected control's bounds become its element's; nothing happens where there is no such element.
void WriteSelectedBounds(CanvasParts& parts);
/// The keyboard goes back to the canvas.
void FocusForm(CanvasParts& parts);
/// The skin has changed, and the caption says so.
void MarkDirty(CanvasParts& parts);

}  // namespace ornavo
