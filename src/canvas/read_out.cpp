// SPDX-License-Identifier: MIT
#include "canvas/read_out.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include "canvas/corner_math.h"
#include "platform/control.h"
#include "platform/fonts.h"

namespace ornavo {
namespace {

constexpr QPoint BesidePointer = {18, 22};
constexpr int TextMargin = 3;

QString NumbersOf(const Selection& dragged) {
    const Rect at = dragged.SelControl()->Bounds();
    if (dragged.IsCorner())
        return QStringLiteral("%1, %2").arg(at.left + CornerReach).arg(at.top + CornerReach);
    return QStringLiteral("%1, %2   %3 \u00D7 %4").arg(at.left).arg(at.top).arg(at.width).arg(at.height);
}

/// The place beside the pointer; on its other side at the end of the screen.
QPoint PlaceBeside(const QPoint& pointer, const QSize& size) {
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    QPoint at = pointer + BesidePointer;
    if (!screen) return at;
    const QRect room = screen->geometry();
    if (at.x() + size.width() > room.right()) at.setX(pointer.x() - BesidePointer.x() - size.width());
    if (at.y() + size.height() > room.bottom()) at.setY(pointer.y() - BesidePointer.y() - size.height());
    return at;
}

}  // namespace

ReadOut::ReadOut(QWidget& window) : QLabel(&window, Qt::ToolTip | Qt::WindowTransparentForInput) {
    setObjectName("ReadOut");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(TextMargin);
    setFont(ScreenFont({}));
}

void ReadOut::ShowBeside(const QPoint& pointer, const Selection& dragged) {
    setText(NumbersOf(dragged));
    const QSize wanted = sizeHint();
    setGeometry(QRect(PlaceBeside(pointer, wanted), wanted));
    dragged.SelControl()->installEventFilter(this);  // installing it again has no effect
    show();
}

bool ReadOut::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Hide) hide();
    return false;
}

}  // namespace ornavo
