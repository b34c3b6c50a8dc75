// SPDX-License-Identifier: MIT
// The sides and corners of the shape as controls on the canvas.
#pragma once

#include "document/dblayouts.h"
#include "platform/dbline.h"
#include "platform/picture_box.h"
#include "platform/pool.h"
#include "render/placement.h"

namespace ornavo {

inline constexpr Colour PointColor = ColourOf(0x80FFFF), PointBlinkColor = ColourOf(0xFF);

/// A corner of the shape on the canvas.
struct Corner {
    int order;
    Point at;  // pixels of the canvas
};
/// The corners by ascending Order. Of several corners with the same Order only the first counts. A corner is
/// left out if its Order is not in 1 to the count or its position cannot be computed.
std::vector<Corner> CornersByOrder(const dbLayout& layout, const Frame& frame);

/// The pools of sides and corners.
class ShapePoints {
public:
    /// The controls become children of the window; the listener gets their mouse events.
    ShapePoints(QWidget& window, ControlEvents* listener);

private:
    ControlEvents* listener_;  // initialised before the pools, which use it

public:
    Pool<dbLine> cPoint;           // sides; Tag is the Order of the first point
    Pool<PictureBox> cPointMover;  // corners; Tag is "K" and the Order

    /// Builds the sides and corners of the composed layout anew, by the view switches.
    void ShowShapePoints();
    void HideShapePoints();
    int GetFreeLine();
    int GetFreeMover(int x, int y);  // a visible corner at x, y; returns its slot

    /// Moves the ends of the two sides that meet at the corner with this Order.
    void MoveSides(int order);
    /// The visible control with this Order; null if there is none.
    dbLine* FindSide(int order);
    PictureBox* FindCorner(int order);

private:
    void ShowSides(const std::vector<Corner>& corners);
};

}  // namespace ornavo
