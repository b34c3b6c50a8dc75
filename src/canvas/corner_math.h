// SPDX-License-Identifier: MIT
// The arithmetic of dragging a corner and aligning a new one. All values are pixels of the canvas.
#pragma once

#include <optional>

#include "base/geometry.h"

namespace ornavo {

inline constexpr int CornerSize = 5, CornerReach = 2;  // width of the handle; from its top left to its centre

/// A move of the pointer while a corner's handle is held.
struct CornerDrag {
    Point handle;         // the top left of the handle
    Point down, pointer;  // in the handle's own pixels
    bool snap = false;
    int gridX = 1, gridY = 1;
    Size canvas;
};

/// The new top left of the handle, limited so that its centre stays on the canvas; empty if the pointer has
/// not moved. With `snap`, vertical steps are multiples of gridX and horizontal ones of gridY.
std::optional<Point> CornerStep(const CornerDrag& drag);

/// The alignment of a new corner in one direction: to an end of the canvas that is nearer than 100 pixels,
/// otherwise as the corner before it.
int AlignOfNewPoint(int at, int extent, int alignBefore);

/// Whether the point is in the bounding box of a side, widened by 3 pixels.
bool IsNearSide(Point at, Point from, Point to);

}  // namespace ornavo
