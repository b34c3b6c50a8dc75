// SPDX-License-Identifier: MIT
// Where an element is in windows of every size. Left and right depend on the width alone, top and bottom on
// the height alone: each direction is a table, and a meeting is ranges of widths times ranges of heights.
#pragma once

#include <cstdint>
#include <vector>

#include "base/failure.h"
#include "base/geometry.h"
#include "render/placement.h"

namespace ornavo {

/// Whole numbers from the first to the last.
struct Interval {
    int first, last;
    bool operator==(const Interval&) const = default;
};
/// Ascending.
using Ranges = std::vector<Interval>;

inline constexpr Interval CheckedWidths = {600, 3840}, CheckedHeights = {600, 2160};  // of windows, pixels
inline constexpr Size LeastWindow = {CheckedWidths.first, CheckedHeights.first};
inline constexpr int LeastGap = 8;  // between ranges; fewer sizes in between belong to the range

/// Adds a number that is larger than all others.
void Add(Ranges& ranges, int number);

/// The numbers that the condition holds for.
template <class Condition>
Ranges RangesWhere(Interval numbers, Condition holds) {
    Ranges ranges;
    for (int number = numbers.first; number <= numbers.last; ++number)
        if (holds(number)) Add(ranges, number);
    return ranges;
}

enum class Axis { X, Y };
constexpr Interval CheckedSizes(Axis axis) {
    return axis == Axis::X ? CheckedWidths : CheckedHeights;
}

/// Something in one direction, for each window size that is checked and for the skin's own.
template <class T>
class SizeTable {
public:
    /// The function gets the frame of each window. If it fails with the skin's own, that failure is thrown;
    /// otherwise the value is T().
    template <class Function>
    SizeTable(Axis axis, const Size& skin, Function valueOf) : sizes_(CheckedSizes(axis)) {
        Frame frame = {skin.width, skin.height, skin.width, skin.height};
        own_ = valueOf(frame);
        int& size = axis == Axis::X ? frame.TargetWidth : frame.TargetHeight;
        for (size = sizes_.first; size <= sizes_.last; ++size)
            Attempt([&, &value = values_.emplace_back()] { value = valueOf(frame); });
    }
    Interval sizes() const { return sizes_; }
    const T& Own() const { return own_; }
    const T& At(int size) const { return values_[static_cast<std::size_t>(size - sizes_.first)]; }

private:
    Interval sizes_;
    T own_;
    std::vector<T> values_;
};

/// From the first pixel to behind the last one; not shown if it has none.
struct Span {
    std::int64_t start = 0, end = 0;
    bool IsShown() const { return start < end; }
};

/// The spans of an element in one direction.
class SpanTable : public SizeTable<Span> {
public:
    SpanTable(const dbLayoutElement& element, Axis axis, const Size& skin);
    /// The window sizes for which the condition holds of the span.
    template <class Condition>
    Ranges Where(Condition holds) const {
        return RangesWhere(sizes(), [&](int size) { return holds(At(size), size); });
    }
    /// The window sizes at which the two lie over each other with so many pixels, of those in the window.
    static Ranges Meeting(const SpanTable& one, const SpanTable& other, int pixels);

private:
    std::vector<Span> hulls_;  // of the spans of a run of sizes each
};

/// How many pixels of the two lie over each other in a window of this size; negative for a gap.
std::int64_t Overlap(const Span& one, const Span& other, int window);

}  // namespace ornavo
