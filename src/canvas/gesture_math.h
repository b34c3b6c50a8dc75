// SPDX-License-Identifier: MIT
// Drag, resize and nudge steps: from numbers to numbers, all of them pixels. Knows no window.
#pragma once

#include <array>
#include <optional>

#include "base/geometry.h"
#include "platform/input_codes.h"

namespace ornavo {

struct Grid {
    bool snap = false;
    int x = 1, y = 1;  // spacings; below 1 they count as 1
};

inline constexpr int HandleSize = 7;  // width and height of a handle

/// Where a control at `corner` goes when the pointer has come `way` from its press; empty while the pointer
/// is within `deadZone` of it both ways. Snapped, the way is whole steps, across by the grid's y and down by
/// its x. Where a place leaves 16 bits, it stays.
std::optional<Point> DragStep(Point corner, Point way, int deadZone, const Grid& grid);

/// The bounds after handle 0 to 7, clockwise from the top left, was dragged by `way`. Snapped, the edges that
/// move and the sizes land on the grid, across by its x and down by its y. No size falls below 0.
Rect ResizeStep(int handle, const Rect& bounds, Point way, const Grid& grid);

/// The top left corners of the eight handles around the bounds.
std::array<Point, 8> HandlePlaces(const Rect& bounds);

/// An arrow key: `direction` is 1 or -1 on one axis, `shift` a ShiftMask. Without a modifier it moves by 1;
/// with Shift it sizes by 1, else with Ctrl by 10; with Alt alone nothing. A size that would fall below 0
/// stays.
Rect NudgeStep(const Rect& bounds, Point direction, int shift);

/// The way of an arrow key for a corner: 1, with any modifier 10.
Point CornerNudge(Point direction, int shift);

}  // namespace ornavo
