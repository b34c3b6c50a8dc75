// SPDX-License-Identifier: MIT
// Colours as the skin file has them: 0x00BBGGRR, or a system colour 0x80000000 to 0x8000001E.
#pragma once

#include <cstdint>

namespace ornavo {

using Colour = std::int32_t;  // signed, as in the file

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

/// The plain colour 0x00BBGGRR of any colour value. A system colour is looked up in a fixed table of the
/// classic values. -1 for an unknown system colour or any other value above 0xFFFFFF.
Colour TranslateColor(Colour colour);

/// Mixes two colours, each translated first: alpha 255 gives `one`, 0 gives `two`. Each channel is computed
/// in floating point and rounded half to even.
Colour BlendColor(Colour one, Colour two, int alpha);

}  // namespace ornavo
