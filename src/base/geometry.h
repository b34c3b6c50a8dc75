// SPDX-License-Identifier: MIT
// Points, sizes and rectangles in whole pixels, and the number of twips in a pixel.
#pragma once

namespace ornavo {

inline constexpr int TwipsPerPixel = 15;  // fixed; the system's dpi does not matter

struct Point {
    int x = 0, y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Rect&) const = default;
};

}  // namespace ornavo
