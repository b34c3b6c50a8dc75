// SPDX-License-Identifier: MIT
// Which gesture an event of the mouse belongs to, by the name of the control under it.
#pragma once

#include "canvas/canvas_parts.h"
#include "canvas/read_out.h"
#include "platform/control.h"

namespace ornavo {

class CanvasEvents : public ControlEvents {
public:
    explicit CanvasEvents(CanvasParts& parts);

    void MouseDown(Control& control, const Mouse& mouse) override;
    void MouseMove(Control& control, const Mouse& mouse) override;
    void MouseUp(Control& control, const Mouse& mouse) override;
    void DblClick(Control& control, const Mouse& mouse) override;

    /// The mouse on the bare canvas, in its pixels. True if the press has inserted a corner.
    bool Form_MouseDown(int x, int y);
    void Form_MouseMove(int x, int y);

private:
    void Drag(Control& control, const Mouse& mouse);

    CanvasParts& parts_;
    ReadOut readOut_;
    int button_ = 0;                   // that began the drag
    QPoint lastPlace_;                 // of the drag, on the screen
    Control* pressedTwice_ = nullptr;  // by a double click, and still held
    Mouse secondPress_;                // of that control
};

}  // namespace ornavo
