// SPDX-License-Identifier: MIT
// The program's windows as lines of a menu, ticked while they are shown.
#pragma once

#include <QPoint>

#include "canvas/canvas_parts.h"

class QMenu;

namespace ornavo {

/// The menu of the bare canvas, at that place of the screen.
void PopupWindowMenu(CanvasParts& parts, const QPoint& at);
/// The same lines in a submenu at the menu's foot; nothing where there are none.
void AddWindowMenu(QMenu& menu, Windows& windows);

}  // namespace ornavo
