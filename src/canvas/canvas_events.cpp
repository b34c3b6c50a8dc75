// SPDX-License-Identifier: MIT
#include "canvas/canvas_events.h"

#include <QGuiApplication>

#include "base/failure.h"
#include "canvas/anchors.h"
#include "canvas/dragging.h"
#include "canvas/element_families.h"
#include "canvas/resizing.h"
#include "canvas/sample_clicks.h"
#include "canvas/shape_gestures.h"
#include "document/current_skin.h"
#include "render/sample_families.h"

namespace ornavo {
namespace {

using Handler = void (*)(CanvasParts&, Control&, const Mouse&);
/// The three handlers of a gesture.
struct Gesture {
    Handler down, move, up;
};

void Ignore(CanvasParts&, Control&, const Mouse&) {}

constexpr Gesture None = {Ignore, Ignore, Ignore};
constexpr Gesture OfElement = {Element_MouseDown, Element_MouseMove, Element_MouseUp};
constexpr Gesture OfSample = {Ignore, Ignore, Sample_MouseUp};
constexpr Gesture OfHandle = {Anchor_MouseDown, Anchor_MouseMove, Anchor_MouseUp};
constexpr Gesture OfPoint = {cPoint_MouseDown, Ignore, Ignore};
constexpr Gesture OfCorner = {cPointMover_MouseDown, cPointMover_MouseMove, cPointMover_MouseUp};

const Gesture& GestureOf(const Control& control) {
    if (FamilyOf(control)) return OfElement;
    if (FindSample(control.Name)) return OfSample;
    if (control.Name == "Anchor") return OfHandle;
    if (control.Name == "cPoint") return OfPoint;
    return IsCorner(control) ? OfCorner : None;
}

QPoint OnScreen(const Control& control, const Mouse& mouse) {
    return control.mapToGlobal(QPoint(mouse.x, mouse.y));
}

bool AnotherIsHeld(int button) {
    return QGuiApplication::mouseButtons() & ~Qt::MouseButtons(button);
}

}  // namespace

CanvasEvents::CanvasEvents(CanvasParts& parts) : parts_(parts), readOut_(parts.form) {}

void CanvasEvents::MouseDown(Control& control, const Mouse& mouse) {
    pressedTwice_ = nullptr;
    // Ignore a second button that is pressed during a drag. If no other button is held, a release was lost.
    if (parts_.drag.MouseIsDown() && AnotherIsHeld(mouse.button)) return;
    FinishDrag(parts_);
    readOut_.hide();
    button_ = mouse.button;
    lastPlace_ = OnScreen(control, mouse);
    Attempt([&] { GestureOf(control).down(parts_, control, mouse); });
}

void CanvasEvents::MouseMove(Control& control, const Mouse& mouse) {
    if (parts_.form.testAttribute(Qt::WA_SetCursor)) parts_.form.unsetCursor();
    if (pressedTwice_ == &control && mouse.button & LeftButton) MouseDown(control, secondPress_);
    if (!parts_.drag.MouseIsDown()) return;
    if (mouse.button == 0) {  // the release went to another window
        lastPlace_ = OnScreen(control, mouse);
        return MouseUp(control, {button_, mouse.shift, mouse.x, mouse.y});
    }
    Drag(control, mouse);
    if (parts_.selection.SelControl()) readOut_.ShowBeside(lastPlace_, parts_.selection);
}

void CanvasEvents::Drag(Control& control, const Mouse& mouse) {
    lastPlace_ = OnScreen(control, mouse);
    Attempt([&] { GestureOf(control).move(parts_, control, mouse); });
}

void CanvasEvents::MouseUp(Control& control, const Mouse& mouse) {
    pressedTwice_ = nullptr;
    if (parts_.drag.MouseIsDown() && mouse.button != button_) return;
    readOut_.hide();
    if (!parts_.form.isVisible()) return;  // the preview has been opened and has ended the drag
    // The last move may be missing: Qt drops a move if a later one is queued, even behind the release.
    if (parts_.drag.MouseIsDown() && OnScreen(control, mouse) != lastPlace_)
        Drag(control, {button_, mouse.shift, mouse.x, mouse.y});
    Attempt([&] { GestureOf(control).up(parts_, control, mouse); });
}

/// The drag begins with the first move, from the place of the second press.
void CanvasEvents::DblClick(Control& control, const Mouse& mouse) {
    pressedTwice_ = &control;
    secondPress_ = mouse;
}

bool CanvasEvents::Form_MouseDown(int x, int y) {
    const int side = objCurrentLayout ? LineUnderPointer(x, y) : 0;
    if (side == 0) {
        parts_.anchors.ResetSelection();
        return false;
    }
    bool inserted = false;
    Attempt([&] { inserted = AddShapePoint(parts_, side, x, y, Origin::Canvas); });
    parts_.showGrid();
    return inserted;
}

void CanvasEvents::Form_MouseMove(int x, int y) {
    if (objCurrentLayout && LineUnderPointer(x, y) > 0)
        parts_.form.setCursor(Qt::CrossCursor);
    else
        parts_.form.unsetCursor();
}

}  // namespace ornavo
