// SPDX-License-Identifier: MIT
// Points, sizes and rectangles in pixels, or in twips where a name says so.
#pragma once

namespace ornavo {

inline constexpr int TwipsPerPixel = 15;  // fixed; the system's dpi does not matter

/// A position.
struct Point {
    int x = 0, y = 0;
    bool operator==(const Point&) const = default;
};

/// A width and a height.
struct Size {
    int width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

/// A rectangle by its top left corner and its size.
struct Rect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Rect&) const = default;
};

}  // namespace ornavo
