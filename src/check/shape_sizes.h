// SPDX-License-Identifier: MIT
// What the shape of a layout's window leaves of its elements. A slanting side couples width and height, so
// that sizes are tried along lines: one size of the window stays, the other is every one in turn.
#pragma once

#include <vector>

#include "check/size_ranges.h"
#include "document/dblayouts.h"

namespace ornavo {

enum class Rest { All, Part, Nothing };

/// The windows of one fixed height (along X) or width (along Y).
struct SizeLine {
    Axis along;
    int fixed;       // within the sizes that are checked
    Interval sizes;  // of the other direction
};

class ShapeSizes {
public:
    /// Throws a Failure if a corner can't be placed in a window of the skin's size.
    ShapeSizes(const dbLayout& layout, const Size& skin);

    /// Whether it is a polygon at all; otherwise nothing is cut.
    bool IsShape() const { return count_ >= 3; }
    /// What is left of the element in a window of the skin's size.
    Rest AtOwnSize(const SpanTable& x, const SpanTable& y) const;
    /// The sizes of the line at which a part of the element is left, and nothing. What is outside of the
    /// window or less than 3 pixels deep doesn't count.
    struct Cuts {
        Ranges part, whole;
    };
    Cuts Along(const SizeLine& line, const SpanTable& x, const SpanTable& y) const;

private:
    using Corners = SizeTable<std::vector<int>>;

    Size skin_;
    std::size_t count_;
    Corners x_, y_;
};

}  // namespace ornavo
