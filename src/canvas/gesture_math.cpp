// SPDX-License-Identifier: MIT
#include "canvas/gesture_math.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/failure.h"
#include "base/numbers.h"

namespace ornavo {
namespace {

/// Which edges a handle moves: -1 left or top, 1 right or bottom, 0 none.
struct HandleSides {
    int across, down;
};
constexpr std::array<HandleSides, 8> Handles = {
    {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}}};

double InSteps(double way, int spacing) {
    const double step = std::max(1, spacing);
    return RoundHalfEven(way / step) * step;
}

int Moved(int from, int way, bool snap, int spacing) {
    int to = from;
    Attempt([&] { to = ToInteger(from + (snap ? InSteps(way, spacing) : way)); });
    return to;
}

/// Start and length in one direction.
struct Span {
    int start, extent;
};

Span Sized(Span span, int side, int way, bool snap, int spacing) {
    if (side == 0) return span;
    const double step = snap ? InSteps(way, spacing) : way;
    double start = span.start + step, extent = span.extent + side * step;
    if (snap) start = InSteps(start, spacing), extent = InSteps(extent, spacing);
    return {side < 0 ? ToLong(start) : span.start, ToLong(std::max(0.0, extent))};
}

int HandlePlace(Span span, int side) {
    if (side < 0) return span.start - HandleSize;
    if (side > 0) return span.start + span.extent;
    constexpr int half = HandleSize / 2;  // rounded down
    return ToLong(span.start + span.extent / 2.0 - half);
}

int Grown(int extent, int by) {
    return extent + by < 0 ? extent : extent + by;
}

}  // namespace

std::optional<Point> DragStep(Point corner, Point way, int deadZone, const Grid& grid) {
    if (std::abs(way.x) <= deadZone && std::abs(way.y) <= deadZone) return std::nullopt;
    // Dragging uses the spacings crossed and resizing does not; users are used to that.
    return Point{Moved(corner.x, way.x, grid.snap, grid.y), Moved(corner.y, way.y, grid.snap, grid.x)};
}

Rect ResizeStep(int handle, const Rect& bounds, Point way, const Grid& grid) {
    const HandleSides sides = Handles.at(static_cast<std::size_t>(handle));
    const Span x = Sized({bounds.left, bounds.width}, sides.across, way.x, grid.snap, grid.x);
    const Span y = Sized({bounds.top, bounds.height}, sides.down, way.y, grid.snap, grid.y);
    return {x.start, y.start, x.extent, y.extent};
}

std::array<Point, 8> HandlePlaces(const Rect& bounds) {
    std::array<Point, 8> places;
    std::transform(Handles.begin(), Handles.end(), places.begin(), [&](const HandleSides& sides) {
        return Point{HandlePlace({bounds.left, bounds.width}, sides.across),
                     HandlePlace({bounds.top, bounds.height}, sides.down)};
    });
    return places;
}

Rect NudgeStep(const Rect& bounds, Point direction, int shift) {
    if (shift == 0) return {bounds.left + direction.x, bounds.top + direction.y, bounds.width, bounds.height};
    const int step = shift & ShiftKey ? 1 : shift & CtrlKey ? 10 : 0;
    return {bounds.left, bounds.top, Grown(bounds.width, direction.x * step),
            Grown(bounds.height, direction.y * step)};
}

Point CornerNudge(Point direction, int shift) {
    const int step = shift == 0 ? 1 : 10;
    return {direction.x * step, direction.y * step};
}

}  // namespace ornavo
