// SPDX-License-Identifier: MIT
#include "render/shape.h"

#include "render/target.h"

namespace ornavo {
namespace {

const QColor Dim(0, 0, 0, 96);
const QColor LineDark(0, 0, 0, 170), LineLight(255, 255, 255, 230);
constexpr int Beyond = 10;  // pixels by which the frame of an inverted shape lies outside the window

/// The same polygon with a frame around the window spliced in after its first corner, so that an odd-even
/// filling covers what lies outside.
QPolygon Inverted(const QPolygon& shape, const Frame& frame) {
    if (shape.isEmpty()) return shape;
    const int right = frame.TargetWidth + Beyond, bottom = frame.TargetHeight + Beyond;
    QPolygon all;
    all << shape.first() << QPoint(-Beyond, -Beyond) << QPoint(-Beyond, bottom) << QPoint(right, bottom)
        << QPoint(right, -Beyond) << QPoint(-Beyond, -Beyond);
    for (const QPoint& corner : shape) all << corner;
    all << shape.first();
    return all;
}

}  // namespace

QPolygon ShapePolygon(const dbLayout& layout, const Frame& frame, bool forRegion) {
    QPolygon polygon;
    for (const dbPointRef& point : *layout.dbPoints) {
        const Point at = GetPointPosition(*point, frame, forRegion);
        polygon << QPoint(at.x, at.y);
    }
    return polygon;
}

QRegion ShapeRegion(const dbLayout& layout, const Frame& frame) {
    const QPolygon polygon = ShapePolygon(layout, frame, true);
    return polygon.size() < 3 ? QRegion() : QRegion(polygon, Qt::OddEvenFill);
}

void ShapeForm() {
    MeasureTarget();
    TargetForm->SetShape(ShapeRegion(*TargetLayout, TargetFrame));
}

void DrawShapeOverlay(QPainter& painter, const dbLayout& layout, const Frame& frame, bool inverted) {
    const QPolygon shape = ShapePolygon(layout, frame, false);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Dim);
    painter.drawPolygon(inverted ? Inverted(shape, frame) : shape, Qt::OddEvenFill);
    painter.setBrush(Qt::NoBrush);
    painter.translate(0.5, 0.5);
    painter.setPen(QPen(LineDark, 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolygon(shape);
    painter.setPen(QPen(LineLight, 1, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolygon(shape);
    painter.restore();
}

}  // namespace ornavo
