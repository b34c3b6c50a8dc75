// SPDX-License-Identifier: MIT
// The colours of one hue and saturation, by the greatest and the least channel of the pixel that they
// replace: nothing else of a pixel decides its lightness.
#pragma once

#include <cstdint>
#include <vector>

namespace ornavo {

class ColourTable {
public:
    /// Ready for these two, each 0 to 255; nothing is done if it is already.
    void Make(int hue, int saturation);
    /// Replaces `count` pixels of blue, green, red. The two places are the same or lie apart.
    void Apply(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const;

private:
    std::uint32_t ColourOf(const std::uint8_t* pixel) const;
    int hue_ = -1;
    int saturation_ = -1;
    std::vector<std::uint32_t> colours_;  // at greatest * 256 + least: blue, green, red, 0 as bytes of memory
};

/// The scales of the two settings, as the conversions take them: 0 to 255 are once around the circle, from -1
/// to 5, and 0 to 1.
float TargetHue(int hue);
float TargetSaturation(int saturation);

}  // namespace ornavo
