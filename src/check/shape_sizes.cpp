// SPDX-License-Identifier: MIT
#include "check/shape_sizes.h"

#include <algorithm>
#include <cmath>

namespace ornavo {
namespace {

using Places = std::vector<int>;  // of the corners, in one direction

Places PlacesOf(const dbLayout& layout, Axis axis, const Frame& frame) {
    Places places;
    for (const dbPointRef& corner : *layout.dbPoints) {
        const Point at = GetPointPosition(*corner, frame, CornerOf::Region);
        places.push_back(axis == Axis::X ? at.x : at.y);
    }
    return places;
}

/// What must be cut for the span to count as cut: it without its outermost pixels and what is outside of the
/// window.
Span CoreOf(const Span& span, int window) {
    constexpr std::int64_t rim = 2;
    const Span seen = {std::max<std::int64_t>(span.start, 0), std::min<std::int64_t>(span.end, window)};
    const std::int64_t inset = std::clamp<std::int64_t>((seen.end - seen.start - 1) / 2, 0, rim);
    return {seen.start + inset, seen.end - inset};
}

/// A side of the polygon that runs through a strip along one direction: where it enters and leaves the strip,
/// as parts of its length, and where it crosses the strip's middle, if it does.
struct Side {
    std::size_t from, to;
    double enters, leaves, middle;
};

/// The sides that may cut what lies between two places across. `middle` is between pixels' edges, so that it
/// meets no corner.
std::vector<Side> SidesThrough(const Span& strip, const Places& across) {
    std::vector<Side> sides;
    const auto low = double(strip.start), high = double(strip.end);
    const double middle = std::floor((low + high - 1) / 2) + 0.5;
    for (std::size_t to = 0; to < across.size(); ++to) {
        const std::size_t from = (to == 0 ? across.size() : to) - 1;
        const double a = across[from], b = across[to];
        if (std::max(a, b) <= low || std::min(a, b) >= high) continue;
        const auto part = [&](double at) { return a == b ? 0 : std::clamp((at - a) / (b - a), 0.0, 1.0); };
        sides.push_back({from, to, part(low), a == b ? 1 : part(high),
                         (a < middle) == (b < middle) ? NAN : part(middle)});
    }
    return sides;
}

/// What the polygon leaves of a core by the odd-even rule.
Rest RestOf(const Span& core, const std::vector<Side>& sides, const Places& along) {
    bool isInside = false;
    for (const Side& side : sides) {
        const double from = along[side.from], length = along[side.to] - from;
        const double enters = from + length * side.enters, leaves = from + length * side.leaves;
        if (std::max(enters, leaves) > double(core.start) && std::min(enters, leaves) < double(core.end))
            return Rest::Part;
        isInside ^= from + length * side.middle <= double(core.start);  // never for one that isn't a number
    }
    return isInside ? Rest::All : Rest::Nothing;
}

}  // namespace

ShapeSizes::ShapeSizes(const dbLayout& layout, const Size& skin)
    : skin_(skin),
      count_(static_cast<std::size_t>(layout.dbPoints->Count())),
      x_(Axis::X, skin, [&](const Frame& frame) { return PlacesOf(layout, Axis::X, frame); }),
      y_(Axis::Y, skin, [&](const Frame& frame) { return PlacesOf(layout, Axis::Y, frame); }) {}

Rest ShapeSizes::AtOwnSize(const SpanTable& x, const SpanTable& y) const {
    const Span across = CoreOf(y.Own(), skin_.height), along = CoreOf(x.Own(), skin_.width);
    if (!across.IsShown() || !along.IsShown()) return Rest::Nothing;
    return RestOf(along, SidesThrough(across, y_.Own()), x_.Own());
}

ShapeSizes::Cuts ShapeSizes::Along(const SizeLine& line, const SpanTable& x, const SpanTable& y) const {
    const bool isAlongX = line.along == Axis::X;
    const Corners &moving = isAlongX ? x_ : y_, &still = isAlongX ? y_ : x_;
    const SpanTable &along = isAlongX ? x : y, &across = isAlongX ? y : x;
    const Span strip = CoreOf(across.At(line.fixed), line.fixed);
    Cuts cuts;
    if (!strip.IsShown() || still.At(line.fixed).empty()) return cuts;
    const std::vector<Side> sides = SidesThrough(strip, still.At(line.fixed));
    for (int size = line.sizes.first; size <= line.sizes.last; ++size) {
        const Span core = CoreOf(along.At(size), size);
        const Places& places = moving.At(size);
        if (!core.IsShown() || places.empty()) continue;
        const Rest rest = RestOf(core, sides, places);
        if (rest != Rest::All) Add(rest == Rest::Part ? cuts.part : cuts.whole, size);
    }
    return cuts;
}

}  // namespace ornavo
