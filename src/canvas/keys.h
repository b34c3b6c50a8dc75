// SPDX-License-Identifier: MIT
// The keyboard of the canvas as a table.
#pragma once

#include "canvas/canvas_parts.h"

namespace ornavo {

enum KeyCode {
    KeyTab = 9,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyDelete = 46,
    KeyS = 83,
    KeyMenu = 93,
    KeyF5 = 116,
    KeyF10 = 121
};

/// `shift`: 1 Shift, 2 Ctrl, 4 Alt. True if the key has a meaning here.
bool Form_KeyDown(CanvasParts& parts, int keyCode, int shift);

/// The code of one of Qt's keys; 0 for all that have no meaning on the canvas.
int KeyCodeOf(int qtKey);
/// The mask of Shift, Ctrl and Alt.
int ShiftOf(Qt::KeyboardModifiers modifiers);

}  // namespace ornavo
