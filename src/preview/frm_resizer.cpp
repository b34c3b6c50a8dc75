// SPDX-License-Identifier: MIT
#include "preview/frm_resizer.h"

#include <QPainter>

#include "preview/window_shape.h"
#include "render/shape.h"

namespace ornavo {
namespace {

const QColor Ground(38, 44, 54), Edge(140, 170, 210);
constexpr int EdgeWidth = 6;  // half of it is outside

}  // namespace

frm_Resizer::frm_Resizer(std::function<void()> onClick)
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::X11BypassWindowManagerHint),
      onClick_(std::move(onClick)) {
    setObjectName("frm_Resizer");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void frm_Resizer::Stand(const QRect& place, const dbLayout& layout, Frame frame) {
    frame.TargetWidth = place.width();
    frame.TargetHeight = place.height();
    setGeometry(place);
    const QRegion region = ShapeRegion(layout, frame);
    CutWindow(*this, region);
    shape_ =
        region.isEmpty() ? QPolygon(QRect({}, place.size())) : ShapePolygon(layout, frame, CornerOf::Region);
    show();
    raise();
    update();
}

void frm_Resizer::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Edge, EdgeWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPolygon(shape_);
}

}  // namespace ornavo
