// SPDX-License-Identifier: MIT
// The program's windows as items of a menu, checked while they are shown.
#pragma once

#include <QPoint>

#include "canvas/canvas_parts.h"

class QMenu;

namespace ornavo {

/// Opens the menu of the bare canvas at this place of the screen.
void PopupWindowMenu(CanvasParts& parts, const QPoint& at);
/// Adds the items as a submenu at the end of the menu; nothing if there are no windows.
void AddWindowMenu(QMenu& menu, Windows& windows);

}  // namespace ornavo
