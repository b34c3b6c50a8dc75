// SPDX-License-Identifier: MIT
// Where elements and corners are in a window of any size: the anchor arithmetic and its inverse. Uses no
// window and no global.
#pragma once

#include "base/geometry.h"
#include "document/dblayoutelements.h"
#include "document/dbpoints.h"

namespace ornavo {

/// The inner size of the composed window and the size of the skin, in pixels.
struct Frame {
    int TargetWidth = 0, TargetHeight = 0;
    int DesignWidth = 0, DesignHeight = 0;
    bool operator==(const Frame&) const = default;
};

/// The element's rectangle in the window. Failure 11 if the skin's size is 0 where it divides, 6 if a result
/// exceeds 32 bits.
Rect GetElementRect(const dbLayoutElement& element, const Frame& frame);

/// The inverse: sets LeftX, TopY, WidthX and HeightY so that the element has these bounds. Not exact if the
/// sizes differ by an odd number. Failures as above, with the element unchanged.
void WriteElementBounds(dbLayoutElement& element, const Rect& bounds, const Frame& frame);

/// What a corner is placed for. A region excludes its right and bottom edge, so its corners are 1 pixel
/// further to the right and below where the corner is aligned to those.
enum class CornerOf { Shape, Region };
/// The position of the corner in the window.
Point GetPointPosition(const dbPoint& point, const Frame& frame, CornerOf what);

/// The inverse of GetPointPosition for the shape: sets X and Y. Failures as above, with the point
/// unchanged. A coordinate with an unknown alignment is left unchanged.
void SetPointPosition(dbPoint& point, int x, int y, const Frame& frame);

}  // namespace ornavo
