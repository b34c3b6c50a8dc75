// SPDX-License-Identifier: MIT
#include "canvas/resizing.h"

#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/gesture_math.h"
#include "render/view_switches.h"

namespace ornavo {

void Anchor_MouseDown(CanvasParts& parts, Control&, const Mouse& mouse) {
    parts.drag.Begin(DragAnchor, mouse);
}

void Anchor_MouseMove(CanvasParts& parts, Control& anchor, const Mouse& mouse) {
    const DragState& drag = parts.drag;
    Control* resized = parts.selection.SelControl();
    if (!(drag.Is(DragAnchor) || drag.Is(DragScrollframe)) || !resized) return;
    const Grid grid = {viewSwitches.SnapGrid, viewSwitches.GridX, viewSwitches.GridY};
    resized->Move(ResizeStep(anchor.Index, parts.anchors.Mover.Bounds(), drag.Way(mouse), grid));
    ScrollBarFollows(parts);
    parts.anchors.PlaceAnchors();
    MarkDirty(parts);
}

void Anchor_MouseUp(CanvasParts& parts, Control&, const Mouse&) {
    parts.drag.End();
    const Selection& selection = parts.selection;
    if (!selection.SelControl() || selection.SelKey().empty()) {
        parts.anchors.HideAnchors();
    } else {
        WriteSelectedBounds(parts);
        if (selection.SelKey() == "Main") PanelFollows(parts);
        parts.windows.properties().Open();
    }
    FocusForm(parts);
}

}  // namespace ornavo
