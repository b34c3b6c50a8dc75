// SPDX-License-Identifier: MIT
#include "canvas/dragging.h"

#include <array>

#include "base/failure.h"
#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/element_menu.h"
#include "canvas/gesture_math.h"
#include "render/layout_host.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

/// How a family of elements is dragged.
struct ElementDrag {
    DragKindCode kind;
    int deadZone;             // pixels; a move of at most this distance does not drag
    bool resetsWhilePlacing;  // a press clears the selection even while code moves controls
};
constexpr std::array<ElementDrag, 5> Drags = {{
    {DragElement, 1, false},  // in the order of ElementKind
    {DragMain, 0, true},
    {DragInfo, 0, true},
    {DragSearchBox, 0, true},
    {DragScrollframe, 1, true},
}};

const ElementDrag& DragOf(const Control& control) {
    return RowOf(Drags, FamilyOf(control)->kind);
}

/// A press on the bar selects its frame.
Control& Selectable(CanvasParts& parts, Control& control) {
    return &control == &parts.host.ScrollBar ? parts.host.Scrollframe : control;
}

}  // namespace

void Element_MouseDown(CanvasParts& parts, Control& control, const Mouse& mouse) {
    const ElementDrag& element = DragOf(control);
    if (element.resetsWhilePlacing || !parts.drag.IsPlacing()) parts.anchors.ResetSelection();
    if (parts.drag.IsPlacing()) return;
    parts.anchors.SelectWithAnchors(Selectable(parts, control));
    if (mouse.button == RightButton) {
        PopupElementMenu(parts, control.mapToGlobal(QPoint(mouse.x, mouse.y)), FamilyOf(control)->isStandard);
        return;
    }
    parts.drag.Begin(element.kind, mouse);
}

void Element_MouseMove(CanvasParts& parts, Control& control, const Mouse& mouse) {
    const ElementDrag& element = DragOf(control);
    DragState& drag = parts.drag;
    Control* dragged = parts.selection.SelControl();
    if (drag.IsPlacing() || !drag.Is(element.kind) || !dragged) return;
    const Rect from = parts.anchors.Mover.Bounds();
    const std::optional<Point> to = DragStep({from.left, from.top}, drag.Way(mouse), element.deadZone,
                                             {viewSwitches.SnapGrid, viewSwitches.GridX, viewSwitches.GridY});
    if (!to) return;
    const Rect now = dragged->Bounds();
    dragged->Move({to->x, to->y, now.width, now.height});
    ScrollBarFollows(parts);
    const Raised placing = drag.Placing();
    parts.anchors.PlaceAnchors();
    MarkDirty(parts);
}

void Element_MouseUp(CanvasParts& parts, Control& control, const Mouse&) {
    if (parts.drag.IsPlacing()) return;
    parts.drag.End();
    const Control* selected = parts.selection.SelControl();
    const bool isWritten = selected && !parts.selection.SelKey().empty();
    if (isWritten) WriteSelectedBounds(parts);
    if (!isWritten && DragOf(control).kind == DragElement) return;
    if (selected) parts.windows.properties().Open();
    FocusForm(parts);
}

void FinishDrag(CanvasParts& parts) {
    if (!parts.drag.MouseIsDown()) return;
    parts.drag.End();
    const Control* selected = parts.selection.SelControl();
    if (selected && FamilyOf(*selected)) WriteSelectedBounds(parts);
}

}  // namespace ornavo
