// SPDX-License-Identifier: MIT
// Where elements and corners stand in a window of any size: the anchor arithmetic, forward and back.
// Knows no window and reads no global.
#pragma once

#include "base/geometry.h"
#include "document/dblayoutelements.h"
#include "document/dbpoints.h"

namespace ornavo {

/// The window that is composed and the skin's own size, all pixels.
struct Frame {
    int TargetWidth = 0, TargetHeight = 0;
    int DesignWidth = 0, DesignHeight = 0;
};

/// The element's rectangle in the window. Failure 11 where the skin has no size to divide by, 6 where a
/// number leaves 32 bits.
Rect GetElementRect(const dbLayoutElement& element, const Frame& frame);

/// The way back: writes LeftX, TopY, WidthX and HeightY so that the element stands at these bounds. Not an
/// exact inverse where half the difference of the sizes is no whole number. Failures as above; the element
/// is then unchanged.
void WriteElementBounds(dbLayoutElement& element, const Rect& bounds, const Frame& frame);

/// The corner's place in the window. `forRegion`: for a region, which leaves out its right and bottom edge.
Point GetPointPosition(const dbPoint& point, const Frame& frame, bool forRegion);

/// The way back of the form that is not for a region: writes X and Y so that the corner stands there.
/// Failures as above; the point is then unchanged, and so is a direction whose alignment is none.
void SetPointPosition(dbPoint& point, int x, int y, const Frame& frame);

}  // namespace ornavo
