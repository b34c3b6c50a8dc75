// SPDX-License-Identifier: MIT
#include "canvas/resizing.h"

#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/gesture_math.h"
#include "editor/selection.h"
#include "render/view_switches.h"

namespace ornavo {

void Anchor_MouseDown(CanvasParts& parts, Control&, const Mouse& mouse) {
    parts.drag.DragKind = DragAnchor;
    parts.drag.MouseIsDown = true;
    parts.drag.DownX = mouse.x;
    parts.drag.DownY = mouse.y;
}

void Anchor_MouseMove(CanvasParts& parts, Control& anchor, const Mouse& mouse) {
    const DragState& drag = parts.drag;
    const bool acts = drag.DragKind == DragAnchor || drag.DragKind == DragScrollframe;
    if (!drag.MouseIsDown || !acts || !SelControl) return;
    const Grid grid = {viewSwitches.SnapGrid, viewSwitches.GridX, viewSwitches.GridY};
    const Point way = {mouse.x - drag.DownX, mouse.y - drag.DownY};
    SelControl->Move(ResizeStep(anchor.Index, parts.anchors.Mover.Bounds(), way, grid));
    ScrollBarFollows(parts);
    parts.anchors.PlaceAnchors(SelControl, true);
    MarkDirty(parts);
}

void Anchor_MouseUp(CanvasParts& parts, Control&, const Mouse&) {
    parts.drag.MouseIsDown = false;
    parts.drag.DragKind = DragNone;
    if (!SelControl || SelKey.empty()) {
        parts.anchors.HideAnchors();
    } else {
        WriteSelectedBounds(parts);
        if (SelKey == "Main") PanelFollows(parts);
        parts.windows.properties().Open();
    }
    FocusForm(parts);
}

}  // namespace ornavo
