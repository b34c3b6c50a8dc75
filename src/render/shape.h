// SPDX-License-Identifier: MIT
// The polygon of a layout: the region of its window, and the overlay that shows it on the canvas.
#pragma once

#include <QPainter>
#include <QPolygon>
#include <QRegion>

#include "document/dblayouts.h"
#include "render/placement.h"

namespace ornavo {

/// The corners in the order of the collection, in pixels of the window. Throws the failures of
/// GetPointPosition.
QPolygon ShapePolygon(const dbLayout& layout, const Frame& frame, CornerOf what);

/// The window's region by the odd-even rule. Empty if the polygon has no inside, and then the window is not
/// cut.
QRegion ShapeRegion(const dbLayout& layout, const Frame& frame);

/// Measures the composed target and cuts it to the target layout's shape.
void ShapeForm();

/// Dims the inside of the shape in a window of this size, or with `inverted` the outside, and draws its
/// outline so that it is visible on black and on white.
void DrawShapeOverlay(QPainter& painter, const QPolygon& shape, const QSize& window, bool inverted);

}  // namespace ornavo
