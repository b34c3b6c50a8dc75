// SPDX-License-Identifier: MIT
#include "platform/control.h"

#include <QMouseEvent>
#include <QTextDocument>
#include <algorithm>
#include <array>

#include "base/failure.h"
#include "base/find_row.h"
#include "platform/accessible.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int MostPixels = (1 << 24) - 1;  // a position or size beyond it is clamped

/// The Qt cursor of a pointer shape.
struct Pointer {
    MousePointer shape;
    Qt::CursorShape cursor;
};
constexpr std::array Pointers = {
    Pointer{PointerCross, Qt::CrossCursor},       Pointer{PointerDiagonalUp, Qt::SizeBDiagCursor},
    Pointer{PointerUpDown, Qt::SizeVerCursor},    Pointer{PointerDiagonalDown, Qt::SizeFDiagCursor},
    Pointer{PointerLeftRight, Qt::SizeHorCursor}, Pointer{PointerSizeAll, Qt::SizeAllCursor},
};

/// The numbers of the buttons are Qt's own.
Mouse MouseOf(const QMouseEvent& event, int button) {
    const QPoint at = event.position().toPoint();
    const QPoint onScreen = event.globalPosition().toPoint();
    return {button, ShiftOf(event.modifiers()), at.x(), at.y(), onScreen.x(), onScreen.y()};
}

/// Tells a screen reader a control's role, and its bounds as the description.
class AccessibleControl : public QAccessibleWidget {
public:
    explicit AccessibleControl(Control* control) : QAccessibleWidget(control) {}
    QAccessible::Role role() const override { return Told().AccessibleRole(); }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Description || role() == QAccessible::Client)
            return QAccessibleWidget::text(kind);
        const Rect at = Told().Bounds();
        return QStringLiteral("%1, %2   %3 \u00D7 %4").arg(at.left).arg(at.top).arg(at.width).arg(at.height);
    }

private:
    const Control& Told() const { return *static_cast<Control*>(widget()); }
};

}  // namespace

int ShiftOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? ShiftKey : 0) | (modifiers & Qt::ControlModifier ? CtrlKey : 0) |
           (modifiers & Qt::AltModifier ? AltKey : 0);
}

Control::Control(QWidget* parent, std::string name, int index)
    : QWidget(parent), Name(std::move(name)), Index(index) {
    TellReaders<Control, AccessibleControl>();
    setObjectName(Shown(Name));
    setMouseTracking(true);
}

Rect Control::Bounds() const {
    const QRect at = geometry();
    return {at.x(), at.y(), at.width(), at.height()};
}

void Control::Move(const Rect& bounds) {
    if (bounds.width < 0 || bounds.height < 0) throw Failure(Failure::InvalidValue, Name);
    if (bounds == Bounds()) return;
    setGeometry(std::clamp(bounds.left, -MostPixels, MostPixels),
                std::clamp(bounds.top, -MostPixels, MostPixels), std::min(bounds.width, MostPixels),
                std::min(bounds.height, MostPixels));
}

void Control::ZOrder() {
    raise();
}

void Control::SetAccessible(QAccessible::Role role, const QString& name) {
    role_ = role;
    if (name != accessibleName()) setAccessibleName(name);
}

void Control::Refresh() {
    update();
}

void Control::SetBackColor(Colour colour) {
    if (colour == backColor_) return;
    backColor_ = colour;
    update();
}

void Control::SetMousePointer(MousePointer shape) {
    if (shape == pointer_) return;
    pointer_ = shape;
    if (const Pointer* pointer = FindRow(Pointers, &Pointer::shape, shape))
        setCursor(pointer->cursor);
    else
        unsetCursor();
}

void Control::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (events_) events_->MouseDown(*this, MouseOf(*event, event->button()));
}

void Control::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (events_) events_->MouseMove(*this, MouseOf(*event, event->buttons()));
}

void Control::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (events_) events_->MouseUp(*this, MouseOf(*event, event->button()));
}

void Control::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (events_) events_->DblClick(*this, MouseOf(*event, event->button()));
}

QString PlainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? "<pre>" + text.toHtmlEscaped() + "</pre>" : text;
}

QColor ScreenColour(Colour colour) {
    const Colour plain = TranslateColor(colour);
    if (plain < 0) return Qt::black;
    return QColor(RedOf(plain), GreenOf(plain), BlueOf(plain));
}

}  // namespace ornavo
