// SPDX-License-Identifier: MIT
#include "render/placement.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "document/codes.h"

namespace ornavo {
namespace {

/// One direction of an element: its anchors and the two sizes of the window.
struct Axis {
    bool nearLock, farLock, stretch;
    double target, design;
    double (*half)(double);  // rounds the shift of a far-locked, stretched element; the only difference
                             // between the directions
};

/// Start and length in one direction.
struct Span {
    double start, extent;
};

double Whole(double value) {
    return RoundHalfEven(value);
}
double Floor(double value) {
    return std::floor(value);
}

double Divided(double dividend, double divisor) {
    if (divisor == 0)
        throw Failure(Failure::DivisionByZero, "Placement",
                      "Division by zero: the skin has no width or height");
    return dividend / divisor;
}

Span Placed(Span field, const Axis& axis) {
    const double grown = axis.target - axis.design;
    if (axis.nearLock && axis.farLock) return {field.start, field.extent + grown};
    if (axis.nearLock) return {field.start, field.extent + (axis.stretch ? Whole(grown / 2) : 0)};
    if (axis.farLock && axis.stretch)
        return {axis.target - field.start - axis.half(grown / 2), field.extent + Whole(grown / 2)};
    if (axis.farLock) return {axis.target - field.start, field.extent};
    if (axis.stretch)
        return {Divided(axis.target * field.start, axis.design),
                Divided(axis.target * field.extent, axis.design)};
    return {field.start + Whole(grown / 2), field.extent};
}

Span Written(Span shown, const Axis& axis) {
    const double grown = axis.target - axis.design;
    if (axis.nearLock && axis.farLock) return {shown.start, shown.extent - grown};
    if (axis.nearLock) return {shown.start, shown.extent - (axis.stretch ? grown / 2 : 0)};
    if (axis.farLock && axis.stretch)
        return {axis.target - shown.start - grown / 2, shown.extent - grown / 2};
    if (axis.farLock) return {axis.target - shown.start, shown.extent};
    if (axis.stretch)
        return {Divided(shown.start * axis.design, axis.target),
                Divided(shown.extent * axis.design, axis.target)};
    return {shown.start - grown / 2, shown.extent};
}

Axis Horizontal(const dbLayoutElement& e, const Frame& f) {
    return {e.LockLeft, e.LockRight, e.StretchWidth, double(f.TargetWidth), double(f.DesignWidth), Floor};
}

Axis Vertical(const dbLayoutElement& e, const Frame& f) {
    return {e.LockTop, e.LockBottom, e.StretchHeight, double(f.TargetHeight), double(f.DesignHeight), Whole};
}

double PointOnAxis(int align, int distance, double target, double design, CornerOf what) {
    switch (align) {
        case AlignStart:
            return distance;
        case AlignMiddle:
            return (target - design) / 2 + distance;
        case AlignEnd:
            return target - distance + (what == CornerOf::Region ? 1 : 0);
        case AlignStretch:
            return Divided(target * distance, design);
        default:
            return 0;
    }
}

double PointOffAxis(int align, int distance, int at, double target, double design) {
    switch (align) {
        case AlignStart:
            return at;
        case AlignMiddle:
            return at - (target - design) / 2;
        case AlignEnd:
            return target - at;
        case AlignStretch:
            return Divided(at * design, target);
        default:
            return distance;
    }
}

}  // namespace

Rect GetElementRect(const dbLayoutElement& element, const Frame& frame) {
    const Span x = Placed({double(element.LeftX), double(element.WidthX)}, Horizontal(element, frame));
    const Span y = Placed({double(element.TopY), double(element.HeightY)}, Vertical(element, frame));
    return {ToLong(x.start), ToLong(y.start), ToLong(x.extent), ToLong(y.extent)};
}

void WriteElementBounds(dbLayoutElement& element, const Rect& bounds, const Frame& frame) {
    const Span x = Written({double(bounds.left), double(bounds.width)}, Horizontal(element, frame));
    const Span y = Written({double(bounds.top), double(bounds.height)}, Vertical(element, frame));
    const Rect fields = {ToLong(x.start), ToLong(y.start), ToLong(x.extent), ToLong(y.extent)};
    element.LeftX = fields.left;
    element.TopY = fields.top;
    element.WidthX = fields.width;
    element.HeightY = fields.height;
}

Point GetPointPosition(const dbPoint& point, const Frame& frame, CornerOf what) {
    return {ToLong(PointOnAxis(point.HAlign, point.X, frame.TargetWidth, frame.DesignWidth, what)),
            ToLong(PointOnAxis(point.VAlign, point.Y, frame.TargetHeight, frame.DesignHeight, what))};
}

void SetPointPosition(dbPoint& point, int x, int y, const Frame& frame) {
    const int newX = ToLong(PointOffAxis(point.HAlign, point.X, x, frame.TargetWidth, frame.DesignWidth));
    const int newY = ToLong(PointOffAxis(point.VAlign, point.Y, y, frame.TargetHeight, frame.DesignHeight));
    point.X = newX;
    point.Y = newY;
}

}  // namespace ornavo
