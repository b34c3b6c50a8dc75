// SPDX-License-Identifier: MIT
#include "canvas/shape_points.h"

#include "base/failure.h"
#include "canvas/corner_math.h"
#include "document/shape_edits.h"
#include "render/target.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

constexpr Colour SideColour = ColourOf(0xFFFFFF);
constexpr int HitWidth = 3;  // pixels to each side of a line
constexpr int Farthest = 1 << 24;
constexpr const char* SideTip = "Click to insert a corner here";
constexpr const char* CornerTip = "Drag to move this corner, right-click to remove it";

template <class T>
T* Hidden(T* control, ControlEvents* listener, const char* tip) {
    control->Listen(listener);
    control->SetMousePointer(PointerCross);
    control->setToolTip(QString::fromLatin1(tip));
    control->setVisible(false);
    return control;
}

dbLine* NewSide(QWidget& window, ControlEvents* listener, int index) {
    auto* side = new dbLine(&window, "cPoint", index);
    side->BorderColor = SideColour;
    side->Shaded = true;
    side->SetHitWidth(HitWidth);
    return Hidden(side, listener, SideTip);
}

PictureBox* NewCorner(QWidget& window, ControlEvents* listener, int index) {
    auto* corner = new PictureBox(&window, "cPointMover", index);
    corner->SetBackColor(PointColor);
    return Hidden(corner, listener, CornerTip);
}

}  // namespace

std::vector<Corner> CornersByOrder(const dbLayout& layout, const Frame& frame) {
    const int count = layout.dbPoints->Count();
    std::vector<dbPointRef> byOrder(static_cast<std::size_t>(count));
    for (const dbPointRef& point : *layout.dbPoints) {
        if (point->Order < 1 || point->Order > count) continue;
        dbPointRef& place = byOrder[static_cast<std::size_t>(point->Order) - 1];
        if (!place) place = point;
    }
    std::vector<Corner> corners;
    for (const dbPointRef& point : byOrder)
        if (point)
            Attempt([&] {
                corners.push_back({point->Order, GetPointPosition(*point, frame, CornerOf::Shape)});
            });
    return corners;
}

ShapePoints::ShapePoints(QWidget& window, ControlEvents* listener)
    : listener_(listener),
      cPoint([this, &window](int index) { return NewSide(window, listener_, index); }),
      cPointMover([this, &window](int index) { return NewCorner(window, listener_, index); }) {}

void ShapePoints::HideShapePoints() {
    cPoint.Clear();
    cPointMover.Clear();
}

void ShapePoints::ShowShapePoints() {
    if (!TargetLayout) return HideShapePoints();
    cPoint.Free();
    cPointMover.Free();
    const std::vector<Corner> corners = CornersByOrder(*TargetLayout, TargetFrame);
    if (viewSwitches.ShowLines) ShowSides(corners);
    if (viewSwitches.ShowPoints)
        for (const Corner& corner : corners)
            cPointMover[GetFreeMover(corner.at.x, corner.at.y)].Tag = TagOfPoint(corner.order);
    cPoint.HideFree();
    cPointMover.HideFree();
}

void ShapePoints::ShowSides(const std::vector<Corner>& corners) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Corner& from = corners[i];
        const Corner& to = corners[(i + 1) % corners.size()];
        dbLine& side = cPoint[GetFreeLine()];
        side.MoveTo(from.at.x, from.at.y, to.at.x, to.at.y);
        side.Tag = std::to_string(from.order);
        side.ZOrder();
        side.setVisible(true);
    }
}

void ShapePoints::MoveSides(int order) {
    const std::vector<Corner> corners = CornersByOrder(*TargetLayout, TargetFrame);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (corners[i].order != order) continue;
        const Point at = corners[i].at;
        const std::size_t before = (i + corners.size() - 1) % corners.size();
        if (dbLine* ending = FindSide(corners[before].order)) {
            ending->SetX2(at.x);
            ending->SetY2(at.y);
        }
        if (dbLine* starting = FindSide(order)) {
            starting->SetX1(at.x);
            starting->SetY1(at.y);
        }
        return;
    }
}

dbLine* ShapePoints::FindSide(int order) {
    const std::string tag = std::to_string(order);
    for (int i = 1; i <= cPoint.Top(); ++i)
        if (cPoint[i].Tag == tag) return &cPoint[i];
    return nullptr;
}

PictureBox* ShapePoints::FindCorner(int order) {
    const std::string tag = TagOfPoint(order);
    for (int i = 1; i <= cPointMover.Top(); ++i)
        if (cPointMover[i].Tag == tag) return &cPointMover[i];
    return nullptr;
}

int ShapePoints::GetFreeLine() {
    return cPoint.GetFree();
}

int ShapePoints::GetFreeMover(int x, int y) {
    const int slot = cPointMover.GetFree();
    PictureBox& corner = cPointMover[slot];
    corner.Move({std::clamp(x, -Farthest, Farthest) - CornerReach,
                 std::clamp(y, -Farthest, Farthest) - CornerReach, CornerSize, CornerSize});
    corner.SetBackColor(PointColor);
    corner.ZOrder();
    corner.setVisible(true);
    return slot;
}

}  // namespace ornavo
