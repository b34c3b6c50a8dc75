// SPDX-License-Identifier: MIT
// Colours as the skin file has them: 0x00BBGGRR, or a system colour 0x80000000 to 0x8000001E.
#pragma once

#include <cstdint>

namespace ornavo {

using Colour = std::int32_t;  // signed, as it stands in the file

/// A colour constant from its hexadecimal form.
constexpr Colour ColourOf(std::uint32_t bits) {
    return static_cast<Colour>(bits);
}
constexpr Colour Rgb(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}
constexpr int RedOf(Colour c) {
    return c & 0xFF;
}
constexpr int GreenOf(Colour c) {
    return c >> 8 & 0xFF;
}
constexpr int BlueOf(Colour c) {
    return c >> 16 & 0xFF;
}

inline constexpr Colour ButtonFace = ColourOf(0x8000000F);

/// The plain colour 0x00BBGGRR of any colour value; system colours by the fixed table of classic
/// values, -1 where there is no such system colour or the high byte is otherwise set.
Colour TranslateColor(Colour colour);

/// Mixes two colours, each translated first: alpha 255 gives `one`, 0 gives `two`. Per channel in real
/// numbers, rounded half to even.
Colour BlendColor(Colour one, Colour two, int alpha);

}  // namespace ornavo
