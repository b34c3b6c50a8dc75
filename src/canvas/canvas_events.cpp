// SPDX-License-Identifier: MIT
#include "canvas/canvas_events.h"

#include <QGuiApplication>
#include <algorithm>
#include <array>

#include "base/failure.h"
#include "canvas/anchors.h"
#include "canvas/dragging.h"
#include "canvas/resizing.h"
#include "canvas/sample_clicks.h"
#include "canvas/shape_gestures.h"
#include "document/current_skin.h"
#include "editor/selection.h"

namespace ornavo {
namespace {

using Handler = void (*)(CanvasParts&, Control&, const Mouse&);
struct Gesture {
    std::string_view name;
    Handler down, move, up;
};

void Ignore(CanvasParts&, Control&, const Mouse&) {}

constexpr std::array Gestures = {
    Gesture{"Element", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"pMain", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"pInfo", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"tbx_Search", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"Scrollframe", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"ScrollBar", Element_MouseDown, Element_MouseMove, Element_MouseUp},
    Gesture{"Anchor", Anchor_MouseDown, Anchor_MouseMove, Anchor_MouseUp},
    Gesture{"cPoint", cPoint_MouseDown, Ignore, Ignore},
    Gesture{"cPointMover", cPointMover_MouseDown, cPointMover_MouseMove, cPointMover_MouseUp},
    Gesture{"but_AddAll", Ignore, Ignore, Sample_MouseUp},
    Gesture{"but_Info", Ignore, Ignore, Sample_MouseUp},
    Gesture{"but_Label", Ignore, Ignore, Sample_MouseUp},
    Gesture{"but_Picture", Ignore, Ignore, Sample_MouseUp},
    Gesture{"but_Song", Ignore, Ignore, Sample_MouseUp},
    Gesture{"but_Song2", Ignore, Ignore, Sample_MouseUp},
    Gesture{"KeyB", Ignore, Ignore, Sample_MouseUp},
    Gesture{"KeyE", Ignore, Ignore, Sample_MouseUp},
    Gesture{"KeyN", Ignore, Ignore, Sample_MouseUp},
    Gesture{"KeyS", Ignore, Ignore, Sample_MouseUp},
    Gesture{"KeyU", Ignore, Ignore, Sample_MouseUp},
    Gesture{"lbl_Kiosk", Ignore, Ignore, Sample_MouseUp},
    Gesture{"lbl_SL", Ignore, Ignore, Sample_MouseUp},
};
constexpr Gesture None = {"", Ignore, Ignore, Ignore};

const Gesture& GestureOf(const Control& control) {
    const auto found = std::find_if(Gestures.begin(), Gestures.end(),
                                    [&](const Gesture& one) { return one.name == control.Name; });
    return found == Gestures.end() ? None : *found;
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
    // A second button during a drag is a slip of the hand. With no other held, a release was lost.
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
    if (mouse.button == 0) {  // the release went elsewhere
        lastPlace_ = OnScreen(control, mouse);
        return MouseUp(control, {button_, mouse.shift, mouse.x, mouse.y});
    }
    Drag(control, mouse);
    if (SelControl) readOut_.ShowBeside(lastPlace_, *SelControl);
}

void CanvasEvents::Drag(Control& control, const Mouse& mouse) {
    lastPlace_ = OnScreen(control, mouse);
    Attempt([&] { GestureOf(control).move(parts_, control, mouse); });
}

void CanvasEvents::MouseUp(Control& control, const Mouse& mouse) {
    pressedTwice_ = nullptr;
    if (parts_.drag.MouseIsDown() && mouse.button != button_) return;
    readOut_.hide();
    // A quick hand's last move may be lost to a later one that waits behind the release.
    if (parts_.drag.MouseIsDown() && OnScreen(control, mouse) != lastPlace_)
        Drag(control, {button_, mouse.shift, mouse.x, mouse.y});
    Attempt([&] { GestureOf(control).up(parts_, control, mouse); });
}

/// The drag begins with the first move, from where the second press was.
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
    Attempt([&] { inserted = AddShapePoint(parts_, side, x, y, false); });
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
