// SPDX-License-Identifier: MIT
// Points and rectangles in whole pixels, and the fixed size of a twip.
#pragma once

namespace ornavo {

inline constexpr int TwipsPerPixel = 15;  // never a value asked of the system

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
