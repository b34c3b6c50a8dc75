// SPDX-License-Identifier: MIT
// The two conversions between red, green, blue and hue, lightness, saturation. Every named value is a 32-bit
// float; what lies between is computed in double precision, and the results depend on it to the last bit.
#pragma once

#include <cstdint>

namespace ornavo {

float Maximum(float a, float b, float c);
float Minimum(float a, float b, float c);

/// Channels 0 to 255. H in sixths of the circle, -1 to 5: 0 is pure red, 1 yellow, 2 green, 4 blue; it is not
/// wrapped. S and L 0 to 1. A grey has H and S 0. Red wins a tie with green, green one with blue.
void RGBToHLS(std::int32_t R, std::int32_t G, std::int32_t B, float& H, float& S, float& L);

/// The way back, each channel rounded half to even. With values in the ranges above the channels are 0 to
/// 255; with others they may lie outside. Failure 6 beyond 32 bits.
void HLSToRGB(float H, float S, float L, std::int32_t& R, std::int32_t& G, std::int32_t& B);

/// Of a colour whose greatest and least channel, in 0 to 1, are these.
inline float LightnessOf(float max, float min) {
    return static_cast<float>((double{max} + min) / 2);
}

}  // namespace ornavo
