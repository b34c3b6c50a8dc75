// SPDX-License-Identifier: MIT
// The state of a drag on the canvas, from the press to the release.
#pragma once

#include "base/failure.h"
#include "base/geometry.h"
#include "platform/control.h"

namespace ornavo {

enum DragKindCode { DragNone, DragElement, DragMain, DragInfo, DragAnchor, DragSearchBox, DragScrollframe };
inline constexpr int DragCorner = DragInfo;  // a corner has the same number as an info element

/// Which kind of control is dragged and where it was pressed.
class DragState {
public:
    void Begin(int kind, const Mouse& press) {
        kind_ = kind;
        down_ = {press.x, press.y};
    }
    void End() { kind_ = DragNone; }
    bool Is(int kind) const { return kind_ == kind; }
    bool MouseIsDown() const { return kind_ != DragNone; }

    Point Down() const { return down_; }  // the place of the press, in the pressed control's pixels
    Point Way(const Mouse& mouse) const { return {mouse.x - down_.x, mouse.y - down_.y}; }

    /// While the result lives, code moves controls, and mouse handlers that check IsPlacing do nothing.
    [[nodiscard]] Raised Placing() { return Raised(isPlacing_); }
    bool IsPlacing() const { return isPlacing_; }

private:
    int kind_ = DragNone;
    Point down_;
    bool isPlacing_ = false;
};

}  // namespace ornavo
