// SPDX-License-Identifier: MIT
// Dragging a corner and aligning a new one, as numbers to numbers. Pixels of the canvas.
#pragma once

#include <optional>

#include "base/geometry.h"

namespace ornavo {

inline constexpr int CornerSize = 5, CornerReach = 2;  // the handle's edge, and its centre from its top left

/// One move of the pointer over a handle that is held.
struct CornerDrag {
    Point handle;         // its top left
    Point down, pointer;  // in the handle's own pixels
    bool snap = false;
    int gridX = 1, gridY = 1;
    Size canvas;
};

/// Where the handle's top left goes, so that its centre stays on the canvas; nothing where the pointer has
/// not moved. Steps down follow the grid's X and steps across its Y.
std::optional<Point> CornerStep(const CornerDrag& drag);

/// How a new corner is aligned in one direction: near an end of the canvas to that end, elsewhere as the
/// corner before it.
int AlignOfNewPoint(int at, int extent, int alignBefore);

/// Whether the place is on the box of a side or within 3 pixels of it.
bool IsNearSide(Point at, Point from, Point to);

}  // namespace ornavo
