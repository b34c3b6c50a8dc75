// SPDX-License-Identifier: MIT
// The numeric codes of mouse buttons, modifier keys and pointer shapes.
#pragma once

namespace ornavo {

enum MouseButton { LeftButton = 1, RightButton = 2 };  // 4 is the middle button

enum ShiftMask { ShiftKey = 1, CtrlKey = 2, AltKey = 4 };

enum MousePointer {
    PointerDefault = 0,
    PointerCross = 2,
    PointerDiagonalUp = 6,  // from bottom left to top right
    PointerUpDown = 7,
    PointerDiagonalDown = 8,
    PointerLeftRight = 9,
    PointerSizeAll = 15
};

}  // namespace ornavo
