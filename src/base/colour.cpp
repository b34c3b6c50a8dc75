// SPDX-License-Identifier: MIT
#include "base/colour.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"

namespace ornavo {

namespace {

/// The system colours 0 to 30 of the classic grey desktop. The user's own desktop colours are never asked
/// for, so that a skin looks the same on every computer.
constexpr std::array<Colour, 31> SystemColours = {
    Rgb(0xD4, 0xD0, 0xC8),  // 0 scroll bar
    Rgb(0x3A, 0x6E, 0xA5),  // 1 desktop
    Rgb(0x0A, 0x24, 0x6A),  // 2 active title bar
    Rgb(0x80, 0x80, 0x80),  // 3 inactive title bar
    Rgb(0xD4, 0xD0, 0xC8),  // 4 menu
    Rgb(0xFF, 0xFF, 0xFF),  // 5 window
    Rgb(0x00, 0x00, 0x00),  // 6 window frame
    Rgb(0x00, 0x00, 0x00),  // 7 menu text
    Rgb(0x00, 0x00, 0x00),  // 8 window text
    Rgb(0xFF, 0xFF, 0xFF),  // 9 active title text
    Rgb(0xD4, 0xD0, 0xC8),  // 10 active border
    Rgb(0xD4, 0xD0, 0xC8),  // 11 inactive border
    Rgb(0x80, 0x80, 0x80),  // 12 application workspace
    Rgb(0x0A, 0x24, 0x6A),  // 13 selection
    Rgb(0xFF, 0xFF, 0xFF),  // 14 selected text
    Rgb(0xD4, 0xD0, 0xC8),  // 15 button face
    Rgb(0x80, 0x80, 0x80),  // 16 button shadow
    Rgb(0x80, 0x80, 0x80),  // 17 disabled text
    Rgb(0x00, 0x00, 0x00),  // 18 button text
    Rgb(0xD4, 0xD0, 0xC8),  // 19 inactive title text
    Rgb(0xFF, 0xFF, 0xFF),  // 20 button highlight
    Rgb(0x40, 0x40, 0x40),  // 21 dark shadow
    Rgb(0xD4, 0xD0, 0xC8),  // 22 light edge
    Rgb(0x00, 0x00, 0x00),  // 23 tool tip text
    Rgb(0xFF, 0xFF, 0xE1),  // 24 tool tip
    Rgb(0xB5, 0xB5, 0xB5),  // 25 alternate face, unused
    Rgb(0x00, 0x00, 0x80),  // 26 link
    Rgb(0xA6, 0xCA, 0xF0),  // 27 far end of the active title bar
    Rgb(0xC0, 0xC0, 0xC0),  // 28 far end of the inactive title bar
    Rgb(0x0A, 0x24, 0x6A),  // 29 highlighted menu entry
    Rgb(0xD4, 0xD0, 0xC8),  // 30 menu bar
};

int BlendChannel(int one, int two, int alpha) {
    const double mixed = (255 - alpha) * two / 255.0 + alpha * one / 255.0;
    return std::clamp(static_cast<int>(RoundHalfEven(mixed)), 0, 255);
}

}  // namespace

Colour TranslateColor(Colour colour) {
    const auto bits = static_cast<std::uint32_t>(colour);
    if (bits <= 0xFFFFFFu) return colour;
    const std::uint32_t index = bits ^ 0x80000000u;
    return index < SystemColours.size() ? SystemColours[index] : -1;
}

Colour BlendColor(Colour one, Colour two, int alpha) {
    const Colour a = TranslateColor(one);
    const Colour b = TranslateColor(two);
    return Rgb(BlendChannel(RedOf(a), RedOf(b), alpha), BlendChannel(GreenOf(a), GreenOf(b), alpha),
               BlendChannel(BlueOf(a), BlueOf(b), alpha));
}

}  // namespace ornavo
