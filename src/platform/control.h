// SPDX-License-Identifier: MIT
// The base class of the controls of a layout: name, tag, bounds and one listener for the mouse.
#pragma once

#include <QAccessible>
#include <QWidget>
#include <string>

#include "base/colour.h"
#include "base/geometry.h"
#include "platform/input_codes.h"

namespace ornavo {

class Control;

/// A mouse event on a control.
struct Mouse {
    int button = 0;                // MouseButton; for a move the mask of the buttons held down
    int shift = 0;                 // ShiftMask
    int x = 0, y = 0;              // pixels of the control
    int screenX = 0, screenY = 0;  // pixels of the screen
};

/// The modifiers as a ShiftMask.
int ShiftOf(Qt::KeyboardModifiers modifiers);

/// The mouse events of a window's controls.
class ControlEvents {
public:
    virtual ~ControlEvents() = default;
    virtual void MouseDown(Control&, const Mouse&) {}
    virtual void MouseMove(Control&, const Mouse&) {}
    virtual void MouseUp(Control&, const Mouse&) {}
    virtual void DblClick(Control&, const Mouse&) {}  // instead of MouseDown for the second press
    virtual void Repeat(Control&) {}                  // again and again while a button is held down
};

/// The base class of a layout's controls. It accepts every press, so that none reaches the window behind.
class Control : public QWidget {
public:
    Control(QWidget* parent, std::string name, int index = 0);

    std::string Name;  // of the control or of its pool
    int Index = 0;     // index in its pool
    std::string Tag;   // key of its element; "" while the control is unused

    Rect Bounds() const;
    void Move(const Rect& bounds);  // pixels of the parent; Failure 380 for a negative size
    void ZOrder();                  // brings it to the front
    virtual void Refresh();         // repaints what has changed
    /// The role and the name that a screen reader tells; its bounds are the description.
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

/// The text in a form that a tool tip shows literally, even if it looks like markup.
QString PlainTip(const QString& text);
QColor ScreenColour(Colour colour);  // translated; black for an invalid colour

}  // namespace ornavo
