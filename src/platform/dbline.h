// SPDX-License-Identifier: MIT
// A straight line that is a control of its own and can be hit.
#pragma once

#include "platform/control.h"

namespace ornavo {

class dbLine : public Control {
public:
    dbLine(QWidget* parent, std::string name, int index = 0);

    int X1() const { return x1_; }
    int Y1() const { return y1_; }
    int X2() const { return x2_; }
    int Y2() const { return y2_; }
    /// Ends in the parent's pixels. Each setter moves only its own axis.
    void SetX1(int x);
    void SetX2(int x);
    void SetY1(int y);
    void SetY2(int y);
    /// Places the control so that it just surrounds the line, with 2 pixels to spare each way.
    void MoveTo(int x1, int y1, int x2, int y2);

    int BorderWidth = 1;
    bool Shaded = false;  // with a dark rim, so that a light line shows on a light ground
    Colour BorderColor = ornavo::ColourOf(0x80000008);
    /// From now on the line alone is hit, with so many pixels to each side; what else its control covers lets
    /// the mouse through to what lies below. 0: the whole control is hit.
    void SetHitWidth(int pixels);
    Rect InnerLine() const { return inner_; }  // left, top to left + width, top + height; signed

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    void PlaceAcross();
    void PlaceDown();
    void LayInnerLine();
    void MaskHits();

    int x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
    Rect inner_;
    int hitWidth_ = 0;
};

}  // namespace ornavo
