// SPDX-License-Identifier: MIT
// The eight handles around the selection, the record of its bounds, and the selection's coming and going.
#pragma once

#include <array>

#include "canvas/canvas_parts.h"
#include "platform/picture_box.h"

namespace ornavo {

class LayoutHost;
class ShapePoints;

class Anchors {
public:
    /// The handles become children of the window, hidden; the listener hears their mouse.
    Anchors(QWidget& window, ControlEvents* listener, DragState& drag, Windows& windows);
    ~Anchors();  // the selection goes with its window
    Anchors(const Anchors&) = delete;
    Anchors& operator=(const Anchors&) = delete;

    /// Handles and Mover around the control, which it gives back. Without `keepSelection` the control becomes
    /// the selection and the handles show. Nothing, or a control that is hidden, hides the handles.
    Control* PlaceAnchors(Control* control, bool keepSelection);
    /// Hides handles and Mover, and the properties panel unless KeepPropertiesOpen holds it, once.
    void HideAnchors();
    /// Nothing is selected any more.
    void ResetSelection();
    /// As it must be when another skin or layout takes the place: nothing selected, no panel, no drag.
    void HideSelectionTools();
    /// After a composition, which deals all slots anew: the selection is again the control whose Tag is
    /// SelKey, or nothing. The handles stay where they are, in front.
    void FollowSelection(LayoutHost& host, ShapePoints& points);

    std::array<PictureBox*, 8> Anchor;  // clockwise from the top left; owned by the window
    Control& Mover;                     // the selection's bounds; see-through for eye and mouse

private:
    void Surround(const Rect& bounds);
    void ShowHandles(bool visible);
    void RaiseHandles();

    DragState& drag_;
    Windows& windows_;
};

}  // namespace ornavo
