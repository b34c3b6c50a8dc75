// SPDX-License-Identifier: MIT
// A straight line as a control that can be clicked.
#pragma once

#include "platform/control.h"

namespace ornavo {

/// A line between two points of its parent.
class dbLine : public Control {
public:
    dbLine(QWidget* parent, std::string name, int index = 0);

    int X1() const { return x1_; }
    int Y1() const { return y1_; }
    int X2() const { return x2_; }
    int Y2() const { return y2_; }
    /// Set one coordinate of an end, in the parent's pixels. Each setter moves the control along one axis
    /// only.
    void SetX1(int x);
    void SetX2(int x);
    void SetY1(int y);
    void SetY2(int y);
    /// Sets both ends, in the parent's pixels. The control is the line's bounding box, 2 pixels wider and
    /// higher.
    void MoveTo(int x1, int y1, int x2, int y2);

    int BorderWidth = 1;
    bool Shaded = false;  // with a dark rim, so that a light line is visible on a light background
    Colour BorderColor = ornavo::ColourOf(0x80000008);
    /// From now on only the line, widened by this many pixels on each side, can be clicked; the rest of the
    /// control passes the mouse to what is below. 0: the whole control can be clicked.
    void SetHitWidth(int pixels);
    Rect InnerLine() const { return inner_; }  // in the control's pixels; a negative width runs left

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
