// SPDX-License-Identifier: MIT
// The polygon of a layout: the region of its window, and the overlay that shows it on the canvas.
#pragma once

#include <QPainter>
#include <QPolygon>
#include <QRegion>

#include "document/dblayouts.h"
#include "render/placement.h"

namespace ornavo {

/// The corners in collection order, pixels of the window. Failures of GetPointPosition.
QPolygon ShapePolygon(const dbLayout& layout, const Frame& frame, bool forRegion);

/// The window's region, odd-even. Empty when the polygon has no inside: then the window stays whole.
QRegion ShapeRegion(const dbLayout& layout, const Frame& frame);

/// Measures the composed target and cuts it to the current layout's shape.
void ShapeForm();

/// Dims the inside of the shape, or with `inverted` what lies outside, and outlines it so that the line shows
/// on black and on white.
void DrawShapeOverlay(QPainter& painter, const dbLayout& layout, const Frame& frame, bool inverted);

}  // namespace ornavo
