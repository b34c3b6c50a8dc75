// SPDX-License-Identifier: MIT
#include "platform/form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "platform/places.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr QSize Graspable = {64, 8};  // pixels of the title bar that must be on a screen

int FrameWidth() {
    return 2 * screenMetrics.SM_CXFRAME;
}

int FrameHeight() {
    return 2 * screenMetrics.SM_CYFRAME + screenMetrics.SM_CYSIZE + 1;
}

int Pixels(int twips) {
    return static_cast<int>(std::lround(twips / static_cast<double>(TwipsPerPixel)));
}

bool CanBeGrasped(const QRect& title) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = screen->availableGeometry() & title;
        return seen.width() >= std::min(Graspable.width(), title.width()) &&
               seen.height() >= Graspable.height();
    });
}

/// The corner of a window of this outer size, moved onto the first screen if its title bar cannot be reached.
QPoint VisibleCorner(QPoint corner, const QSize& outer) {
    const QScreen* first = QGuiApplication::primaryScreen();
    if (!first || CanBeGrasped({corner, QSize(outer.width(), screenMetrics.SM_CYSIZE)})) return corner;
    return WithinRoom(first->availableGeometry(), corner, outer);
}

}  // namespace

Form::Form(QWidget* owner, std::string name, Qt::WindowFlags flags)
    : QWidget(owner, flags), Name(std::move(name)) {
    setObjectName(Shown(Name));
}

Rect Form::TwipBounds() const {
    const bool normal = !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
    const QSize inside = normal ? size() : normalGeometry().size();
    return {corner_.x() * TwipsPerPixel, corner_.y() * TwipsPerPixel,
            (inside.width() + FrameWidth()) * TwipsPerPixel,
            (inside.height() + FrameHeight()) * TwipsPerPixel};
}

void Form::MoveTwips(const Rect& twips) {
    MoveInside({twips.left, twips.top},
               {Pixels(twips.width) - FrameWidth(), Pixels(twips.height) - FrameHeight()});
}

void Form::MoveInside(const Point& corner, const Size& inside) {
    const QSize kept(std::clamp(inside.width, 1, MostWindowPixels),
                     std::clamp(inside.height, 1, MostWindowPixels));
    resize(kept);
    MoveFrame(VisibleCorner({Pixels(corner.x), Pixels(corner.y)}, kept + QSize(FrameWidth(), FrameHeight())));
}

void Form::MoveFrame(const QPoint& corner) {
    corner_ = corner;
    if (isVisible() || !windowHandle()) move(corner);
    if (!windowHandle()) return;
    // Otherwise a hidden window would take its new size when it is shown, at a position that ignores the
    // frame.
    windowHandle()->resize(size());
    windowHandle()->setFramePosition(corner);
}

int Form::WindowState() const {
    const Qt::WindowStates states = windowState();
    if (states & Qt::WindowMinimized) return StateMinimised;
    return states & Qt::WindowMaximized ? StateMaximised : StateNormal;
}

void Form::SetWindowState(int state) {
    constexpr Qt::WindowStates all = Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen;
    Qt::WindowStates wanted = windowState() & ~all;
    if (state == StateMinimised) wanted |= Qt::WindowMinimized;
    if (state == StateMaximised) wanted |= Qt::WindowMaximized;
    setWindowState(wanted);
}

bool Form::event(QEvent* event) {
    const QEvent::Type type = event->type();
    const bool taken = QWidget::event(event);
    if (type == QEvent::DeferredDelete) return taken;  // the window has been deleted
    if (type == QEvent::WindowActivate) Form_Activate();
    if (type == QEvent::Move) TakeCorner(event->spontaneous());
    if (type == QEvent::Show && !event->spontaneous()) KeepCorner();
    return taken;
}

/// Notes the new position. The desktop also moves a window when it adds or removes the frame, and then
/// reports a position without the frame; so its moves count only while the window is on the screen.
void Form::TakeCorner(bool byDesktop) {
    const bool onScreen = isVisible() && windowHandle() && windowHandle()->isExposed();
    if (WindowState() == StateNormal && (onScreen || !byDesktop)) corner_ = pos();
}

/// Restores the position: a resize while the window was hidden would have moved it by its frame.
void Form::KeepCorner() {
    if (testAttribute(Qt::WA_Moved) && WindowState() == StateNormal) MoveFrame(corner_);
}

void Form::resizeEvent(QResizeEvent*) {
    Form_Resize();
}

void Form::closeEvent(QCloseEvent* event) {
    if (!Form_QueryUnload()) return event->ignore();
    Form_Unload();
    QWidget::closeEvent(event);
}

}  // namespace ornavo
