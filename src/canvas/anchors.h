// SPDX-License-Identifier: MIT
// The eight handles around the selection, and selecting and deselecting with them.
#pragma once

#include <array>

#include "canvas/canvas_parts.h"
#include "platform/picture_box.h"

namespace ornavo {

/// The handles and the frame of the selected control.
class Anchors {
public:
    /// The handles become hidden children of the canvas; the listener gets their mouse events.
    Anchors(CanvasParts& parts, ControlEvents* listener);
    Anchors(const Anchors&) = delete;
    Anchors& operator=(const Anchors&) = delete;

    /// Places handles and Mover around the selected control; hides them if there is none or it is hidden.
    void PlaceAnchors();
    /// Selects the control and shows the handles. If the control is hidden, hides the handles instead.
    void SelectWithAnchors(Control& control);
    /// Hides handles and Mover, and the properties panel too unless KeepPropertiesOpen is in force.
    void HideAnchors();
    /// Clears the selection and hides its handles. Does nothing without a selected control.
    void ResetSelection();
    /// Prepares for another skin or layout: clears the selection, hides the panel and ends a drag.
    void HideSelectionTools();
    /// Call after a composition, which hands out all slots anew: selects the control whose Tag is SelKey, or
    /// clears the selection. The handles keep their places and come to the front.
    void FollowSelection();

    std::array<PictureBox*, 8> Anchor;  // clockwise from the top left; owned by the canvas
    Control Mover;                      // has the selection's bounds; invisible, and ignored by the mouse

private:
    void HideProperties();
    Control* Unseen();
    void Surround(const Rect& bounds);
    void ShowHandles(bool visible);
    void RaiseHandles();

    CanvasParts& parts_;
};

}  // namespace ornavo
