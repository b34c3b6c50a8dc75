// SPDX-License-Identifier: MIT
// The context menu of an element as a table.
#pragma once

#include <QPoint>

#include "canvas/canvas_parts.h"

namespace ornavo {

enum ElementMenuItem {
    MenuClone = 5,
    MenuDelete = 11,
    MenuBringToFront = 21,
    MenuSendToBack = 22,
    MenuOriginalSize = 31,
    MenuBackgroundPicture = 32
};

/// Opens the menu at a place of the screen and runs the chosen item. Only the stacking items are enabled for
/// a standard element.
void PopupElementMenu(CanvasParts& parts, const QPoint& at, bool isStandard);

/// Runs an item on the selected element; does nothing without one.
void mnuElementSub_Click(CanvasParts& parts, int index);

}  // namespace ornavo
