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

/// Shows the menu at that place of the screen and does what is chosen. Of a standard element only the
/// stacking items can be.
void PopupElementMenu(CanvasParts& parts, const QPoint& at, bool isStandard);

/// What an item does to the selected element; nothing where there is none.
void mnuElementSub_Click(CanvasParts& parts, int index);

}  // namespace ornavo
