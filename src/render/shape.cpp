// SPDX-License-Identifier: MIT
#include "render/shape.h"

#include "render/target.h"

namespace ornavo {
namespace {

const QColor Dim(0, 0, 0, 96);
const QColor LineDark(0, 0, 0, 170), LineLight(255, 255, 255, 230);
constexpr int Beyond = 10;  // pixels from the window to the frame of an inverted shape
constexpr int Far = 4096;   // pixels from the window at which a region may be cut off

/// The polygon with a frame around the window inserted after its first corner, so that an odd-even filling
/// covers the outside.
QPolygon Inverted(const QPolygon& shape, const QSize& window) {
    if (shape.isEmpty()) return shape;
    const int right = window.width() + Beyond, bottom = window.height() + Beyond;
    QPolygon all;
    all << shape.first() << QPoint(-Beyond, -Beyond) << QPoint(-Beyond, bottom) << QPoint(right, bottom)
        << QPoint(right, -Beyond) << QPoint(-Beyond, -Beyond);
    for (const QPoint& corner : shape) all << corner;
    all << shape.first();
    return all;
}

/// The distance of a point from one edge of the bounds; negative outside of it.
using Depth = double (*)(const QPointF&, const QRectF& bounds);
constexpr Depth Depths[] = {
    [](const QPointF& at, const QRectF& bounds) { return at.x() - bounds.left(); },
    [](const QPointF& at, const QRectF& bounds) { return bounds.right() - at.x(); },
    [](const QPointF& at, const QRectF& bounds) { return at.y() - bounds.top(); },
    [](const QPointF& at, const QRectF& bounds) { return bounds.bottom() - at.y(); },
};

/// The part of the polygon inside of one edge; where it is cut, its side runs along that edge.
QPolygonF CutAt(const QPolygonF& polygon, const QRectF& bounds, Depth depth) {
    QPolygonF kept;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[(i == 0 ? polygon.size() : i) - 1], to = polygon[i];
        const double before = depth(from, bounds), behind = depth(to, bounds);
        if ((before < 0) != (behind < 0)) kept << from + (to - from) * (before / (before - behind));
        if (behind >= 0) kept << to;
    }
    return kept;
}

/// A polygon that is equal inside the window but has no distant corners, because a region costs memory for
/// each of its rows.
QPolygon Nearby(const QPolygon& shape, const Frame& frame) {
    const QRect window(0, 0, frame.TargetWidth, frame.TargetHeight);
    const QRect bounds = window.adjusted(-Far, -Far, Far, Far);
    if (bounds.contains(shape.boundingRect())) return shape;
    QPolygonF cut = shape;
    for (const Depth depth : Depths) cut = CutAt(cut, bounds, depth);
    return cut.toPolygon();
}

}  // namespace

QPolygon ShapePolygon(const dbLayout& layout, const Frame& frame, CornerOf what) {
    QPolygon polygon;
    for (const dbPointRef& point : *layout.dbPoints) {
        const Point at = GetPointPosition(*point, frame, what);
        polygon << QPoint(at.x, at.y);
    }
    return polygon;
}

QRegion ShapeRegion(const dbLayout& layout, const Frame& frame) {
    const QPolygon polygon = Nearby(ShapePolygon(layout, frame, CornerOf::Region), frame);
    return polygon.size() < 3 ? QRegion() : QRegion(polygon, Qt::OddEvenFill);
}

void ShapeForm() {
    MeasureTarget();
    TargetForm->SetShape(ShapeRegion(*TargetLayout, TargetFrame));
}

void DrawShapeOverlay(QPainter& painter, const QPolygon& shape, const QSize& window, bool inverted) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Dim);
    painter.drawPolygon(inverted ? Inverted(shape, window) : shape, Qt::OddEvenFill);
    painter.setBrush(Qt::NoBrush);
    painter.translate(0.5, 0.5);
    painter.setPen(QPen(LineDark, 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolygon(shape);
    painter.setPen(QPen(LineLight, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolygon(shape);
    painter.restore();
}

}  // namespace ornavo
