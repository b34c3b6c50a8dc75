// SPDX-License-Identifier: MIT
// The recoloured pixels for one hue and saturation. A pixel's lightness depends only on its greatest and
// least channel, nearly always on their sum, so a small table has them all.
#pragma once

#include <cstdint>
#include <vector>

namespace ornavo {

/// The table of the new colours.
class ColourTable {
public:
    /// Computes the table for hue and saturation, each 0 to 255, unless it has it already.
    void Make(int hue, int saturation);
    /// Replaces `count` pixels of blue, green, red. `from` and `to` are equal or do not overlap.
    void Apply(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const;

private:
    void CompareKinds();
    template <bool WithKind>
    void ApplyBy(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const;
    int hue_ = -1;
    int saturation_ = -1;
    bool sumIsEnough_ = true;             // pairs of the same sum have the same colour
    std::vector<std::uint32_t> colours_;  // by kind and sum; bytes blue, green, red, 0
};

/// Convert the settings 0 to 255 to the scales of HLSToRGB: the hue to -1 to 5, the saturation to 0 to 1.
float TargetHue(int hue);
float TargetSaturation(int saturation);

}  // namespace ornavo
