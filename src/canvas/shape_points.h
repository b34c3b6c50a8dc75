// SPDX-License-Identifier: MIT
// Sides and corners of the shape as controls on the canvas; a point inserted or moved.
#pragma once

#include "document/dblayouts.h"
#include "platform/dbline.h"
#include "platform/picture_box.h"
#include "platform/pool.h"
#include "render/placement.h"

namespace ornavo {

inline constexpr Colour PointColor = ColourOf(0x80FFFF), PointBlinkColor = ColourOf(0xFF);

struct Corner {
    int order;
    Point at;  // pixels of the canvas
};
/// The corners by ascending Order. Of a doubled order the first counts; one that is missing or beyond the
/// count, and a corner that has no place, is left out.
std::vector<Corner> CornersByOrder(const dbLayout& layout, const Frame& frame);

class ShapePoints {
public:
    /// The controls become children of the window; the listener hears their mouse.
    ShapePoints(QWidget& window, ControlEvents* listener);

private:
    ControlEvents* listener_;  // before the pools, which use it

public:
    Pool<dbLine> cPoint;           // sides; Tag is the Order of the first point
    Pool<PictureBox> cPointMover;  // corners; Tag is "K" and the Order

    /// Rebuilds all sides and corners of the composed layout, as the view switches say.
    void ShowShapePoints();
    void HideShapePoints();
    int GetFreeLine();
    int GetFreeMover(int x, int y);

    /// The two sides that meet at the corner of that Order follow it.
    void MoveSides(int order);
    /// The control shown for that Order; null where none is.
    dbLine* FindSide(int order);
    PictureBox* FindCorner(int order);

private:
    void ShowSides(const std::vector<Corner>& corners);
};

}  // namespace ornavo
