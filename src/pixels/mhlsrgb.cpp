// SPDX-License-Identifier: MIT
#include "pixels/mhlsrgb.h"

#include <algorithm>

#include "base/numbers.h"

namespace ornavo {

namespace {

float Narrow(double value) {
    return static_cast<float>(value);
}

float SaturationOf(double max, double min, float lightness) {
    return Narrow(lightness > 0.5f ? (max - min) / (2 - max - min) : (max - min) / (max + min));
}

/// Channels of 0 to 1.
struct Channels {
    float r, g, b;
};

/// The colour of hue H whose least channel is `min` and greatest `max`; `d` is their difference, rounded to a
/// float.
Channels OnCircle(double H, float min, float max, double d) {
    if (H < 0) return {max, min, Narrow(min - d * H)};
    if (H < 1) return {max, Narrow(d * H + min), min};
    if (H < 2) return {Narrow(min - d * (H - 2)), max, min};
    if (H < 3) return {min, max, Narrow(d * (H - 2) + min)};
    if (H < 4) return {min, Narrow(min - d * (H - 4)), max};
    return {Narrow(d * (H - 4) + min), min, max};
}

}  // namespace

float Maximum(float a, float b, float c) {
    return std::max({a, b, c});
}

float Minimum(float a, float b, float c) {
    return std::min({a, b, c});
}

void RGBToHLS(std::int32_t R, std::int32_t G, std::int32_t B, float& H, float& S, float& L) {
    const float r = Narrow(R / 255.0), g = Narrow(G / 255.0), b = Narrow(B / 255.0);
    const float max = Maximum(r, g, b), min = Minimum(r, g, b);
    L = LightnessOf(max, min);
    H = S = 0;
    if (max == min) return;
    S = SaturationOf(max, min, L);
    const double delta = double{max} - min;
    if (r == max)
        H = Narrow((double{g} - b) / delta);
    else if (g == max)
        H = Narrow(2 + (double{b} - r) / delta);
    else
        H = Narrow(4 + (double{r} - g) / delta);
}

void HLSToRGB(float H, float S, float L, std::int32_t& R, std::int32_t& G, std::int32_t& B) {
    Channels colour{L, L, L};
    if (S != 0) {
        const double l = L, s = S;
        const float min = Narrow(L > 0.5f ? l - (1 - l) * s : (1 - s) * l);
        const float max = Narrow(l + l - min);
        colour = OnCircle(H, min, max, Narrow(double{max} - min));
    }
    R = ToLong(colour.r * 255.0);
    G = ToLong(colour.g * 255.0);
    B = ToLong(colour.b * 255.0);
}

}  // namespace ornavo
