// SPDX-License-Identifier: MIT
#include "platform/screen_pixels.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

namespace ornavo {
namespace {

/// The smallest rectangle of whole logical pixels around a rectangle of device pixels.
QRect Around(const QRect& device, qreal ratio) {
    const QRectF exact(device.x() / ratio, device.y() / ratio, device.width() / ratio,
                       device.height() / ratio);
    return exact.toAlignedRect();
}

/// The part `device` (device pixels) of a picture of `around` (logical pixels).
QImage Cut(const QPixmap& taken, const QRect& around, const QRect& device, qreal ratio) {
    if (taken.isNull()) return {};
    const QPoint corner(qRound(around.x() * ratio), qRound(around.y() * ratio));
    QImage image = taken.toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image.copy(device.translated(-corner));
}

QWidget* WidgetOf(const QObject* window) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->windowHandle() == window) return widget;
    return nullptr;
}

}  // namespace

// The corner of a screen is the same in logical and in device pixels; from there on they differ by its ratio.
QPoint DesktopPixels::Pointer() {
    const QPoint pointer = QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    if (!screen) return pointer;
    const QPoint corner = screen->geometry().topLeft();
    return corner + (pointer - corner) * screen->devicePixelRatio();
}

std::vector<QRect> DesktopPixels::Screens() {
    std::vector<QRect> places;
    for (const QScreen* screen : QGuiApplication::screens())
        places.emplace_back(screen->geometry().topLeft(), screen->size() * screen->devicePixelRatio());
    return places;
}

QImage DesktopPixels::Grab(int number, const QRect& area) {
    QScreen* screen = QGuiApplication::screens().value(number);
    if (!screen) return {};
    const qreal ratio = screen->devicePixelRatio();
    const QRect device = area.translated(-screen->geometry().topLeft());
    const QRect around = Around(device, ratio);
    return Cut(screen->grabWindow(0, around.x(), around.y(), around.width(), around.height()), around, device,
               ratio);
}

QPoint OwnWindowPixels::Pointer() {
    if (!watching_) qApp->installEventFilter(this);
    watching_ = true;
    return window_ ? (pointer_ * window_->devicePixelRatioF()).toPoint() : QPoint();
}

std::vector<QRect> OwnWindowPixels::Screens() {
    if (!window_ || !window_->isVisible()) return {};
    return {QRect({}, window_->size() * window_->devicePixelRatioF())};
}

QImage OwnWindowPixels::Grab(int, const QRect& area) {
    if (!window_) return {};
    const qreal ratio = window_->devicePixelRatioF();
    const QRect around = Around(area, ratio);
    return Cut(window_->grab(around), around, area, ratio);
}

bool OwnWindowPixels::eventFilter(QObject* window, QEvent* event) {
    if (event->type() == QEvent::MouseMove && window->isWindowType()) {
        window_ = WidgetOf(window);
        pointer_ = static_cast<QMouseEvent*>(event)->position();
    }
    return QObject::eventFilter(window, event);
}

}  // namespace ornavo
