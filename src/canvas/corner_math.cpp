// SPDX-License-Identifier: MIT
#include "canvas/corner_math.h"

#include <algorithm>
#include <cstdint>

#include "base/numbers.h"
#include "document/codes.h"

namespace ornavo {
namespace {

constexpr int NearEdge = 100;  // pixels
constexpr int SideMargin = 3;

/// How far the handle moves to the left or up, in pixels.
double StepBack(int down, int pointer, bool snap, int spacing) {
    const double way = static_cast<double>(down) - pointer;
    if (!snap) return way;
    const double grid = std::max(1, spacing);
    return RoundHalfEven(way / grid) * grid;
}

int OnCanvas(double start, int extent) {
    return ToLong(std::min(std::max(start, -1.0 * CornerReach), extent - 1.0 - CornerReach));
}

bool IsBetween(std::int64_t at, std::int64_t one, std::int64_t two) {
    return at >= std::min(one, two) - SideMargin && at <= std::max(one, two) + SideMargin;
}

}  // namespace

std::optional<Point> CornerStep(const CornerDrag& drag) {
    if (drag.pointer == drag.down) return std::nullopt;
    const double top = drag.handle.y - StepBack(drag.down.y, drag.pointer.y, drag.snap, drag.gridX);
    const double left = drag.handle.x - StepBack(drag.down.x, drag.pointer.x, drag.snap, drag.gridY);
    return Point{OnCanvas(left, drag.canvas.width), OnCanvas(top, drag.canvas.height)};
}

int AlignOfNewPoint(int at, int extent, int alignBefore) {
    if (at < NearEdge) return AlignStart;
    return at > extent - NearEdge ? static_cast<int>(AlignEnd) : alignBefore;
}

bool IsNearSide(Point at, Point from, Point to) {
    return IsBetween(at.x, from.x, to.x) && IsBetween(at.y, from.y, to.y);
}

}  // namespace ornavo
