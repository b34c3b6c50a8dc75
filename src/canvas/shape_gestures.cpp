// SPDX-License-Identifier: MIT
#include "canvas/shape_gestures.h"

#include "base/failure.h"
#include "canvas/corner_math.h"
#include "canvas/element_families.h"
#include "canvas/shape_points.h"
#include "document/current_skin.h"
#include "document/shape_edits.h"
#include "render/target.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

bool SideIsAt(const dbPoints& points, int index, Point at) {
    const dbPoint& from = *points.Item(index);
    const dbPoint& to = *points.Item(index % points.Count() + 1);
    return IsNearSide(at, GetPointPosition(from, TargetFrame, CornerOf::Shape),
                      GetPointPosition(to, TargetFrame, CornerOf::Shape));
}

/// A corner at this point, aligned to a near edge or else like its neighbour. Throws the failures of
/// SetPointPosition.
dbPointRef NewPoint(const dbPoint& neighbour, int x, int y, int order) {
    auto point = std::make_shared<dbPoint>();
    point->Order = order;
    point->X = x;
    point->Y = y;
    point->HAlign = AlignOfNewPoint(x, TargetFrame.TargetWidth, neighbour.HAlign);
    point->VAlign = AlignOfNewPoint(y, TargetFrame.TargetHeight, neighbour.VAlign);
    SetPointPosition(*point, x, y, TargetFrame);
    return point;
}

/// The key of a new corner is made of its Order, but an older corner may still have that key.
void InsertWithFreeKey(dbPoints& points, const dbPointRef& point, int after) {
    while (points.Find(TagOfPoint(point->Order))) ++point->Order;
    points.InsertObject(point, after);
}

dbPointRef SelectedPoint(const Selection& selection) {
    if (!selection.IsCorner() || !TargetLayout) return nullptr;
    return TargetLayout->dbPoints->GetFromOrder(OrderOfTag(selection.SelKey()));
}

/// Selects the same corner again after orders and controls have changed.
void SelectAgain(CanvasParts& parts, const dbPoint& selected) {
    if (Control* corner = parts.points.FindCorner(selected.Order))
        parts.selection.Select(*corner);
    else
        parts.selection.Clear();
}

void RemoveCorner(CanvasParts& parts, const std::string& tag) {
    DeleteShapePoint(*objCurrentLayout, tag);
    objSkin->Dirty = true;
    parts.canvas.ResetSelection();
    parts.canvas.UpdateCurrentLayout();
    parts.selection.Clear();
    parts.windows.properties().Hide();
}

void GrabCorner(CanvasParts& parts, Control& corner, const Mouse& mouse) {
    parts.drag.Begin(DragCorner, mouse);
    parts.canvas.ResetSelection();
    parts.selection.Select(corner);
    parts.form.setFocus();
}

}  // namespace

int LineUnderPointer(int x, int y) {
    if (!objCurrentLayout) return 0;
    const dbPoints& points = *objCurrentLayout->dbPoints;
    for (int i = 1; i <= points.Count(); ++i) {
        bool here = false;
        Attempt([&] { here = SideIsAt(points, i, {x, y}); });
        if (here) return i;
    }
    return 0;
}

bool AddShapePoint(CanvasParts& parts, int index, int x, int y, Origin origin) {
    if (!TargetLayout || !objCurrentLayout || index < 1 || index > objCurrentLayout->dbPoints->Count())
        return false;
    if (origin == Origin::Side) {
        const dbLine* side = parts.points.FindSide(index);
        if (!side) return false;
        x += std::min(side->X1(), side->X2());
        y += std::min(side->Y1(), side->Y2());
    }
    dbPoints& points = *TargetLayout->dbPoints;
    const dbPointRef selected = SelectedPoint(parts.selection);
    const bool added = Attempt([&] {
        const dbPoint& neighbour = *objCurrentLayout->dbPoints->Item(index);
        InsertWithFreeKey(points, NewPoint(neighbour, x, y, points.Count() + 1), index);
    });
    if (!added) return false;
    RenumberPoints(points);
    MarkDirty(parts);
    parts.points.ShowShapePoints();
    if (selected) {
        SelectAgain(parts, *selected);
        parts.windows.properties().ShowProperties();
    }
    return true;
}

void MovePoint(CanvasParts& parts, int order, int x, int y) {
    const dbPointRef point = TargetLayout ? TargetLayout->dbPoints->GetFromOrder(order) : nullptr;
    if (!point) return;
    if (!Attempt([&] { SetPointPosition(*point, x, y, TargetFrame); })) return;
    if (viewSwitches.ShowLines) parts.points.MoveSides(order);
    parts.showGrid();
}

void cPoint_MouseDown(CanvasParts& parts, Control& line, const Mouse& mouse) {
    AddShapePoint(parts, OrderOfTag("K" + line.Tag), mouse.x, mouse.y, Origin::Side);
}

void cPointMover_MouseDown(CanvasParts& parts, Control& corner, const Mouse& mouse) {
    if (mouse.button == LeftButton) return GrabCorner(parts, corner, mouse);
    // Ignore the right button while the left one drags.
    if (mouse.button == RightButton && !parts.drag.Is(DragCorner)) RemoveCorner(parts, corner.Tag);
}

void cPointMover_MouseMove(CanvasParts& parts, Control& corner, const Mouse& mouse) {
    if (!parts.drag.Is(DragCorner)) return;
    const Rect at = corner.Bounds();
    const std::optional<Point> next = CornerStep({{at.left, at.top},
                                                  parts.drag.Down(),
                                                  {mouse.x, mouse.y},
                                                  viewSwitches.SnapGrid,
                                                  viewSwitches.GridX,
                                                  viewSwitches.GridY,
                                                  {parts.form.ScaleWidth(), parts.form.ScaleHeight()}});
    if (!next) return;
    corner.Move({next->x, next->y, at.width, at.height});
    MovePoint(parts, OrderOfTag(corner.Tag), next->x + CornerReach, next->y + CornerReach);
    MarkDirty(parts);
}

void cPointMover_MouseUp(CanvasParts& parts, Control&, const Mouse& mouse) {
    if (mouse.button != LeftButton) return;
    parts.drag.End();
    parts.windows.properties().Open();
    FocusForm(parts);
}

}  // namespace ornavo
