// SPDX-License-Identifier: MIT
#include "platform/dbline.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace ornavo {
namespace {

constexpr int Spare = 2;        // pixels; so that the control of a horizontal or vertical line is not empty
constexpr int Farthest = 8192;  // pixels of the parent; nobody clicks farther away
const QColor Shade(0, 0, 0, 110);

int Extent(int one, int two) {
    const std::int64_t distance = std::abs(std::int64_t{one} - two);
    return static_cast<int>(std::min<std::int64_t>(distance, std::numeric_limits<int>::max() - Spare));
}

/// The region of the control within this many pixels of the line. `line` is in the control's pixels,
/// `control` in its parent's.
QRegion NearLine(const Rect& line, int pixels, const Rect& control) {
    const int first = std::max(0, -control.top), last = std::min(control.height, Farthest - control.top);
    if (line.height == 0) return QRegion(0, 0, control.width, control.height);
    const double slope = static_cast<double>(line.width) / line.height;
    const double reach = pixels * std::sqrt(1 + slope * slope);  // in each row, to each side of the line
    std::vector<QRect> rows;
    for (int y = first; y < last; ++y) {
        const double x = line.left + slope * (y - line.top);
        const double from = std::max(0.0, std::ceil(x - reach));
        const double to = std::min(control.width - 1.0, std::floor(x + reach));
        if (from <= to) rows.emplace_back(QPoint(static_cast<int>(from), y), QPoint(static_cast<int>(to), y));
    }
    QRegion near;
    near.setRects(rows.data(), static_cast<int>(rows.size()));
    return near;
}

}  // namespace

dbLine::dbLine(QWidget* parent, std::string name, int index) : Control(parent, std::move(name), index) {
    MoveTo(0, 0, 0, 0);
}

void dbLine::SetX1(int x) {
    x1_ = x;
    PlaceAcross();
}

void dbLine::SetX2(int x) {
    x2_ = x;
    PlaceAcross();
}

void dbLine::SetY1(int y) {
    y1_ = y;
    PlaceDown();
}

void dbLine::SetY2(int y) {
    y2_ = y;
    PlaceDown();
}

void dbLine::PlaceAcross() {
    const Rect now = Bounds();
    Move({std::min(x1_, x2_), now.top, Extent(x1_, x2_) + Spare, now.height});
    LayInnerLine();
}

void dbLine::PlaceDown() {
    const Rect now = Bounds();
    Move({now.left, std::min(y1_, y2_), now.width, Extent(y1_, y2_) + Spare});
    LayInnerLine();
}

void dbLine::MoveTo(int x1, int y1, int x2, int y2) {
    x1_ = x1, y1_ = y1, x2_ = x2, y2_ = y2;
    Move({std::min(x1, x2), std::min(y1, y2), Extent(x1, x2) + Spare, Extent(y1, y2) + Spare});
    LayInnerLine();
}

/// From corner to corner of the control, in the direction from the first end to the second.
void dbLine::LayInnerLine() {
    const int width = Extent(x1_, x2_), height = Extent(y1_, y2_);
    const Rect before = inner_;
    inner_.left = x1_ >= x2_ ? width : 0;
    inner_.width = x1_ >= x2_ ? -width : width;
    inner_.top = y1_ >= y2_ ? height : 0;
    inner_.height = y1_ >= y2_ ? -height : height;
    if (inner_ != before) update();
    if (hitWidth_) MaskHits();
}

void dbLine::SetHitWidth(int pixels) {
    hitWidth_ = pixels;
    MaskHits();
}

void dbLine::MaskHits() {
    if (hitWidth_)
        setMask(NearLine(inner_, hitWidth_, Bounds()));
    else
        clearMask();
}

void dbLine::resizeEvent(QResizeEvent*) {
    LayInnerLine();
}

void dbLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QLine line(inner_.left, inner_.top, inner_.left + inner_.width, inner_.top + inner_.height);
    if (Shaded) {
        painter.setPen(QPen(Shade, BorderWidth + 2));
        painter.drawLine(line);
    }
    painter.setPen(QPen(ScreenColour(BorderColor), BorderWidth));
    painter.drawLine(line);
}

}  // namespace ornavo
