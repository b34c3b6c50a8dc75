// SPDX-License-Identifier: MIT
// The arithmetic of dragging, resizing and nudging. All values are pixels. Uses no window.
#pragma once

#include <array>
#include <optional>

#include "base/geometry.h"
#include "platform/input_codes.h"

namespace ornavo {

/// The grid to which gestures snap.
struct Grid {
    bool snap = false;
    int x = 1, y = 1;  // spacings in pixels; less than 1 counts as 1
};

inline constexpr int HandleSize = 7;  // width and height of a handle

/// The new place of a control at `corner` when the pointer has moved by `way` since the press. Empty while
/// the pointer is within `deadZone` in both directions. Snapped, the way is a multiple of grid.y horizontally
/// and of grid.x vertically. A coordinate beyond 16 bits stays unchanged.
std::optional<Point> DragStep(Point corner, Point way, int deadZone, const Grid& grid);

/// The bounds after handle 0 to 7, clockwise from the top left, was dragged by `way`. Snapped, moved edges
/// and sizes are multiples of grid.x horizontally and of grid.y vertically. Sizes are at least 0.
Rect ResizeStep(int handle, const Rect& bounds, Point way, const Grid& grid);

/// The top left corners of the handles 0 to 7 around the bounds.
std::array<Point, 8> HandlePlaces(const Rect& bounds);

/// The bounds after an arrow key. `direction` is 1 or -1 in one direction, `shift` a ShiftMask. Without a
/// modifier the control moves by 1; Shift resizes by 1, otherwise Ctrl by 10; Alt alone does nothing. A size
/// that would become negative stays.
Rect NudgeStep(const Rect& bounds, Point direction, int shift);

/// How far an arrow key moves a corner: by 1, with any modifier by 10.
Point CornerNudge(Point direction, int shift);

}  // namespace ornavo
