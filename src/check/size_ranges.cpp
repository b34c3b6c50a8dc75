// SPDX-License-Identifier: MIT
#include "check/size_ranges.h"

#include <algorithm>
#include <limits>

namespace ornavo {
namespace {

constexpr int Run = 64;  // window sizes that have one hull
constexpr std::int64_t Least = std::numeric_limits<std::int64_t>::min() / 2;

Span SpanOf(const dbLayoutElement& element, Axis axis, const Frame& frame) {
    const Rect at = GetElementRect(element, frame);
    const std::int64_t start = axis == Axis::X ? at.left : at.top;
    return {start, start + (axis == Axis::X ? at.width : at.height)};
}

}  // namespace

void Add(Ranges& ranges, int number) {
    if (!ranges.empty() && number - ranges.back().last <= LeastGap)
        ranges.back().last = number;
    else
        ranges.push_back({number, number});
}

SpanTable::SpanTable(const dbLayoutElement& element, Axis axis, const Size& skin)
    : SizeTable(axis, skin, [&](const Frame& frame) { return SpanOf(element, axis, frame); }) {
    for (int size = sizes().first; size <= sizes().last; ++size) {
        if ((size - sizes().first) % Run == 0) hulls_.push_back({-Least, Least});
        Span& hull = hulls_.back();
        hull = {std::min(hull.start, At(size).start), std::max(hull.end, At(size).end)};
    }
}

Ranges SpanTable::Meeting(const SpanTable& one, const SpanTable& other, int pixels) {
    Ranges meeting;
    const Interval sizes = one.sizes();
    for (std::size_t run = 0; run < one.hulls_.size(); ++run) {
        const int first = sizes.first + static_cast<int>(run) * Run;
        const int last = std::min(first + Run - 1, sizes.last);
        if (Overlap(one.hulls_[run], other.hulls_[run], last) < pixels) continue;
        for (int size = first; size <= last; ++size)
            if (Overlap(one.At(size), other.At(size), size) >= pixels) Add(meeting, size);
    }
    return meeting;
}

std::int64_t Overlap(const Span& one, const Span& other, int window) {
    return std::min({one.end, other.end, std::int64_t{window}}) -
           std::max({one.start, other.start, std::int64_t{0}});
}

}  // namespace ornavo
