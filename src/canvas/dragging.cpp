// SPDX-License-Identifier: MIT
#include "canvas/dragging.h"

#include "base/failure.h"
#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/element_menu.h"
#include "canvas/gesture_math.h"
#include "editor/selection.h"
#include "render/layout_host.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

/// The bar's mouse is that of its frame.
Control& Selectable(CanvasParts& parts, Control& control) {
    return control.Name == "ScrollBar" ? parts.host.Scrollframe : control;
}

}  // namespace

void Element_MouseDown(CanvasParts& parts, Control& control, const Mouse& mouse) {
    const ElementFamily& family = *FamilyOf(control);
    if (family.resetsWhilePlacing || !parts.drag.IsPlacing()) parts.anchors.ResetSelection();
    if (parts.drag.IsPlacing()) return;
    parts.anchors.PlaceAnchors(&Selectable(parts, control), false);
    if (mouse.button == RightButton) {
        PopupElementMenu(parts, control.mapToGlobal(QPoint(mouse.x, mouse.y)), family.isStandard);
        return;
    }
    parts.drag.Begin(family.dragKind, mouse);
}

void Element_MouseMove(CanvasParts& parts, Control& control, const Mouse& mouse) {
    const ElementFamily& family = *FamilyOf(control);
    DragState& drag = parts.drag;
    if (drag.IsPlacing() || !drag.Is(family.dragKind) || !SelControl) return;
    const Rect from = parts.anchors.Mover.Bounds();
    const std::optional<Point> to = DragStep({from.left, from.top}, drag.Way(mouse), family.deadZone,
                                             {viewSwitches.SnapGrid, viewSwitches.GridX, viewSwitches.GridY});
    if (!to) return;
    const Rect now = SelControl->Bounds();
    SelControl->Move({to->x, to->y, now.width, now.height});
    ScrollBarFollows(parts);
    const Raised placing = drag.Placing();
    parts.anchors.PlaceAnchors(SelControl, true);
    MarkDirty(parts);
}

void Element_MouseUp(CanvasParts& parts, Control& control, const Mouse&) {
    if (parts.drag.IsPlacing()) return;
    parts.drag.End();
    const bool isWritten = SelControl && !SelKey.empty();
    if (isWritten) WriteSelectedBounds(parts);
    if (!isWritten && FamilyOf(control)->dragKind == DragElement) return;
    if (SelControl) parts.windows.properties().Open();
    FocusForm(parts);
}

void FinishDrag(CanvasParts& parts) {
    if (!parts.drag.MouseIsDown()) return;
    parts.drag.End();
    if (SelControl && FamilyOf(*SelControl)) WriteSelectedBounds(parts);
}

}  // namespace ornavo
