// SPDX-License-Identifier: MIT
// The eight handles around the selection, the record of its bounds, and the selection's coming and going.
#pragma once

#include <array>

#include "canvas/canvas_parts.h"
#include "platform/picture_box.h"

namespace ornavo {

class Anchors {
public:
    /// The handles become children of the canvas, hidden; the listener hears their mouse.
    Anchors(CanvasParts& parts, ControlEvents* listener);
    Anchors(const Anchors&) = delete;
    Anchors& operator=(const Anchors&) = delete;

    /// Handles and Mover around the selected control; hidden where there is none, or where it is hidden.
    void PlaceAnchors();
    /// The control becomes the selection, and the handles show. One that is hidden hides the handles.
    void SelectWithAnchors(Control& control);
    /// Hides handles and Mover, and the properties panel unless KeepPropertiesOpen holds it.
    void HideAnchors();
    /// Nothing is selected any more.
    void ResetSelection();
    /// As it must be when another skin or layout takes the place: nothing selected, no panel, no drag.
    void HideSelectionTools();
    /// After a composition, which deals all slots anew: the selection is again the control whose Tag is
    /// SelKey, or nothing. The handles stay where they are, in front.
    void FollowSelection();

    std::array<PictureBox*, 8> Anchor;  // clockwise from the top left; owned by the canvas
    Control Mover;                      // the selection's bounds; see-through for eye and mouse

private:
    void HideProperties();
    Control* Unseen();
    void Surround(const Rect& bounds);
    void ShowHandles(bool visible);
    void RaiseHandles();

    CanvasParts& parts_;
};

}  // namespace ornavo
