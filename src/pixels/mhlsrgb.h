// SPDX-License-Identifier: MIT
// The conversions between red, green, blue and hue, lightness, saturation. Every named value is a 32-bit
// float, every expression is computed in double precision; the results depend on that to the last bit.
#pragma once

#include <cstdint>

namespace ornavo {

float Maximum(float a, float b, float c);
float Minimum(float a, float b, float c);

/// Channels are 0 to 255. H is in sixths of the circle, -1 to 5: 0 is pure red, 1 yellow, 2 green, 4 blue;
/// negative values are kept. S and L are 0 to 1. A grey has H and S 0. If channels tie, red counts before
/// green before blue.
void RGBToHLS(std::int32_t R, std::int32_t G, std::int32_t B, float& H, float& S, float& L);

/// The opposite conversion, with each channel rounded half to even. Channels are 0 to 255 if H, S and L are
/// in the ranges above. Failure 6 for a channel beyond 32 bits.
void HLSToRGB(float H, float S, float L, std::int32_t& R, std::int32_t& G, std::int32_t& B);

/// The lightness of a colour with this greatest and least channel; all are 0 to 1.
inline float LightnessOf(float max, float min) {
    return static_cast<float>((double{max} + min) / 2);
}

}  // namespace ornavo
