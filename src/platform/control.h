// SPDX-License-Identifier: MIT
// The base of every control that a layout owns: name, tag, place, and the mouse handed to one listener.
#pragma once

#include <QAccessible>
#include <QWidget>
#include <string>

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/input_codes.h"

namespace ornavo {

class Control;

struct Mouse {
    int button = 0;    // MouseButton; on a move the mask of those held
    int shift = 0;     // ShiftMask
    int x = 0, y = 0;  // pixels of the control
    int screenX = 0, screenY = 0;
};

/// The mask of Shift, Ctrl and Alt.
int ShiftOf(Qt::KeyboardModifiers modifiers);

/// What a window hears of its controls.
class ControlEvents {
public:
    virtual ~ControlEvents() = default;
    virtual void MouseDown(Control&, const Mouse&) {}
    virtual void MouseMove(Control&, const Mouse&) {}
    virtual void MouseUp(Control&, const Mouse&) {}
    virtual void DblClick(Control&, const Mouse&) {}  // in place of the second press
    virtual void Repeat(Control&) {}                  // a button is held
};

/// Accepts every press, so that nothing falls through to the window behind.
class Control : public QWidget {
public:
    Control(QWidget* parent, std::string name, int index = 0);

    std::string Name;  // of the control or of its pool
    int Index = 0;     // slot of its pool
    std::string Tag;   // key of its element; "" is free

    Rect Bounds() const;
    void Move(const Rect& bounds);  // pixels; Failure 380 on a negative size
    void ZOrder();                  // to the front
    virtual void Refresh();         // paints again what has changed
    /// What a screen reader says of it besides its place.
    void SetAccessible(QAccessible::Role role, const QString& name);
    QAccessible::Role AccessibleRole() const { return role_; }
    void Listen(ControlEvents* events) { events_ = events; }

    Colour BackColor() const { return backColor_; }
    virtual void SetBackColor(Colour colour);

    void SetMousePointer(MousePointer shape);

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    ControlEvents* events() const { return events_; }

private:
    ControlEvents* events_ = nullptr;
    Colour backColor_ = ButtonFace;
    MousePointer pointer_ = PointerDefault;
    QAccessible::Role role_ = QAccessible::Client;
};

/// The text for a tool tip, which shows it as it is, also where it looks like markup.
QString PlainTip(const QString& text);
QColor ScreenColour(Colour colour);  // translated; black for what is no colour

}  // namespace ornavo
