// SPDX-License-Identifier: MIT
// The families of controls that show an element: what they share and where they differ.
#pragma once

#include <string_view>

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

struct ElementFamily {
    std::string_view name;  // of the control or of its pool
    int dragKind;
    int deadZone;             // pixels, inclusive, within which a drag has not begun
    bool resetsWhilePlacing;  // a press drops the old selection even while code moves controls
    bool isStandard;          // the layout's own: neither cloned nor deleted
};

/// Null for any other control. The bar belongs to the family of its frame.
const ElementFamily* FamilyOf(const Control& control);

/// The control in the window that shows the element with the key; null where none does. That of an element
/// that is not visible is found too.
Control* ElementControl(LayoutHost& host, const std::string& key);
/// Whether the control stands for an element while the view shows none.
bool ElementsAreHidden(const Control& control);

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
