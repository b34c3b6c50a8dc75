// SPDX-License-Identifier: MIT
// Elements and their controls on the canvas.
#pragma once

#include "canvas/canvas_parts.h"
#include "document/dblayouts.h"
#include "render/element_kinds.h"

namespace ornavo {

/// The control that shows the element with this key, even if the element is not visible; null if there is
/// none.
Control* ElementControl(LayoutHost& host, const std::string& key);
/// Whether this is the control of an element while the view switches hide all elements.
bool ElementsAreHidden(const Control& control);

/// Null without a selection and for a corner.
dbLayoutElementRef SelectedElement(const CanvasParts& parts);

/// Moves the scroll bar if its frame is selected; call after the frame's bounds have changed.
void ScrollBarFollows(CanvasParts& parts);
/// Redraws the panel and its sample; call after the panel's size has changed.
void PanelFollows(CanvasParts& parts);
/// Writes the selected control's bounds to its element; does nothing without one.
void WriteSelectedBounds(CanvasParts& parts);
/// Gives the keyboard focus to the canvas.
void FocusForm(CanvasParts& parts);
/// Marks the skin as changed and updates the window's caption.
void MarkDirty(CanvasParts& parts);

}  // namespace ornavo
