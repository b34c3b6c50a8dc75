// SPDX-License-Identifier: MIT
// Dispatches mouse events to gestures by the name of the control under the pointer.
#pragma once

#include "canvas/canvas_parts.h"
#include "canvas/read_out.h"
#include "platform/control.h"

namespace ornavo {

/// The listener of all controls on the canvas.
class CanvasEvents : public ControlEvents {
public:
    explicit CanvasEvents(CanvasParts& parts);

    void MouseDown(Control& control, const Mouse& mouse) override;
    void MouseMove(Control& control, const Mouse& mouse) override;
    void MouseUp(Control& control, const Mouse& mouse) override;
    void DblClick(Control& control, const Mouse& mouse) override;

    /// A press on the canvas itself, in its pixels. True if it has inserted a corner.
    bool Form_MouseDown(int x, int y);
    void Form_MouseMove(int x, int y);

private:
    void Drag(Control& control, const Mouse& mouse);

    CanvasParts& parts_;
    ReadOut readOut_;
    int button_ = 0;                   // the button that began the drag
    QPoint lastPlace_;                 // last place of the drag on the screen, pixels
    Control* pressedTwice_ = nullptr;  // control of a double click whose button is still held
    Mouse secondPress_;                // position of that double click
};

}  // namespace ornavo
