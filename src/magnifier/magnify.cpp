// SPDX-License-Identifier: MIT
#include "magnifier/magnify.h"

#include <QPainter>
#include <QWheelEvent>
#include <cmath>

#include "base/failure.h"
#include "base/find_row.h"
#include "platform/control.h"

namespace ornavo {
namespace {

constexpr int Milliseconds = 50;
constexpr int WheelStep = 120;  // eighths of a degree

}  // namespace

Magnify::Magnify(QWidget* parent, PixelSource& desktop, PixelSource& own)
    : QFrame(parent), desktop_(desktop), own_(own) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    SetBorderStyle(1);
    tmr.setInterval(Milliseconds);
    connect(&tmr, &QTimer::timeout, this, &Magnify::Capture);
}

void Magnify::SetZoom(int zoom) {
    if (!Contains(Zooms, zoom)) throw Failure(Failure::InvalidValue, "Magnify");
    zoom_ = zoom;
    emit StateChanged();
}

void Magnify::StepZoom(int by) {
    const int last = static_cast<int>(std::size(Zooms)) - 1;
    const auto now = std::ranges::find(Zooms, zoom_) - std::begin(Zooms);
    SetZoom(Zooms[std::clamp(static_cast<int>(now) + by, 0, last)]);
}

void Magnify::SetFrozen(bool frozen) {
    frozen_ = frozen;
    if (frozen_ || !isVisible())
        tmr.stop();
    else
        tmr.start();
    Capture();
    emit StateChanged();
}

void Magnify::SetBorderStyle(int style) {
    setFrameStyle(style == 0 ? static_cast<int>(NoFrame) : Box | Plain);
}

int Magnify::ScaleWidth() const {
    return static_cast<int>(std::lround(contentsRect().width() * devicePixelRatioF()));
}

int Magnify::ScaleHeight() const {
    return static_cast<int>(std::lround(contentsRect().height() * devicePixelRatioF()));
}

/// False if the source cannot be read.
bool Magnify::See(PixelSource& source, View& view) const {
    view = {{ScaleWidth(), ScaleHeight()}, zoom_, BackColor, {}, {}};
    view.pieces = PiecesOf(source.Pointer(), view.size, zoom_, source.Screens());
    for (const Piece& piece : view.pieces) {
        view.pixels.push_back(source.Grab(piece.screen, piece.source));
        if (view.pixels.back().isNull()) return false;
    }
    return true;
}

void Magnify::Capture() {
    if (busy_) return;
    const ornavo::Raised capturing(busy_);
    View view;
    if (!See(desktop_, view) && !See(own_, view)) return;
    if (view == view_) return;
    view_ = std::move(view);
    picture_ = QImage(view_.size, QImage::Format_RGB32);
    picture_.fill(ScreenColour(BackColor));
    QPainter painter(&picture_);
    for (std::size_t i = 0; i < view_.pieces.size(); ++i)
        painter.drawImage(view_.pieces[i].target, view_.pixels[i]);
    painter.end();
    update();
}

void Magnify::wheelEvent(QWheelEvent* event) {
    turned_ += event->angleDelta().y();
    StepZoom(turned_ / WheelStep);
    turned_ %= WheelStep;
}

void Magnify::showEvent(QShowEvent*) {
    Capture();
    if (!frozen_) tmr.start();
}

void Magnify::hideEvent(QHideEvent*) {
    tmr.stop();
}

void Magnify::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect inside = contentsRect();
    picture_.setDevicePixelRatio(devicePixelRatioF());
    if (picture_.size() != QSize(ScaleWidth(), ScaleHeight()))
        painter.fillRect(inside, ScreenColour(BackColor));
    painter.setClipRect(inside);
    painter.drawImage(inside.topLeft(), picture_);
    painter.setClipping(false);
    drawFrame(&painter);
}

}  // namespace ornavo
