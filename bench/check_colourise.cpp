// SPDX-License-Identifier: MIT
// Compares the recolouring with the same rule in long double, for every pair of greatest and least channel at
// every hue and saturation. Takes a minute; `check_colourise 16` checks only every 16th hue and saturation.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "pixels/ccolourise.h"

namespace ornavo {
namespace {

using Wide = long double;

struct Pixel {
    std::uint8_t b, g, r;
};

/// A picture with each pair once, with any third channel between them and the six orders of channels in turn.
cDIBSection AllPairs(std::vector<float>& lightness) {
    constexpr std::array<std::array<int, 3>, 6> orders{
        {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};
    cDIBSection picture;
    picture.Create(256 * 257 / 2, 1);
    std::uint8_t* pixel = picture.DIBSectionBitsPtr();
    for (int max = 0; max < 256; ++max)
        for (int min = 0; min <= max; ++min, pixel += 3) {
            const std::array<int, 3> values{min, min + (max - min) * 5 / 8, max};
            const std::array<int, 3>& order = orders[lightness.size() % orders.size()];
            for (std::size_t i = 0; i < 3; ++i) pixel[order[i]] = static_cast<std::uint8_t>(values[i]);
            const float a = static_cast<float>(Wide(max) / 255), b = static_cast<float>(Wide(min) / 255);
            lightness.push_back(static_cast<float>((Wide(a) + b) / 2));
        }
    return picture;
}

std::uint8_t ToByte(float channel) {
    return static_cast<std::uint8_t>(std::nearbyint(Wide(channel) * 255));
}

Pixel Expected(float H, float S, float L) {
    if (S == 0) return {ToByte(L), ToByte(L), ToByte(L)};
    const Wide wide = L;
    const float min = static_cast<float>(wide > 0.5L ? wide - (1 - wide) * S : (1 - Wide(S)) * wide);
    const float max = static_cast<float>(wide + wide - min);
    const Wide d = static_cast<float>(Wide(max) - min);
    const int sixth = static_cast<int>(std::floor(H));     // -1 to 5
    const int corner = sixth < 1 ? 0 : sixth < 3 ? 2 : 4;  // of the circle, with only one channel above 0
    const Wide climbed = d * std::fabs(Wide(H) - corner);
    const std::uint8_t low = ToByte(min), high = ToByte(max),
                       between = ToByte(static_cast<float>(min + climbed));
    switch (sixth) {
        case -1:
            return {between, low, high};
        case 0:
            return {low, between, high};
        case 1:
            return {low, high, between};
        case 2:
            return {between, high, low};
        case 3:
            return {high, between, low};
        default:
            return {high, low, between};
    }
}

/// How many pixels differ at one hue and saturation.
long long CountWrong(const cDIBSection& result, const std::vector<Pixel>& byLightness,
                     const std::vector<std::size_t>& lightnessOf) {
    long long wrong = 0;
    const std::uint8_t* pixel = result.DIBSectionBitsPtr();
    for (const std::size_t place : lightnessOf) {
        const Pixel& expected = byLightness[place];
        if (pixel[0] != expected.b || pixel[1] != expected.g || pixel[2] != expected.r) ++wrong;
        pixel += 3;
    }
    return wrong;
}

int Run(int step) {
    std::vector<float> lightness;
    const cDIBSection source = AllPairs(lightness);
    std::vector<float> distinct = lightness;
    std::sort(distinct.begin(), distinct.end());
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    std::vector<std::size_t> lightnessOf;
    for (const float L : lightness)
        lightnessOf.push_back(std::lower_bound(distinct.begin(), distinct.end(), L) - distinct.begin());

    cDIBSection result = source;
    cColourise engine;
    std::vector<Pixel> byLightness(distinct.size());
    long long compared = 0, wrong = 0;
    for (engine.Hue = 0; engine.Hue < 256; engine.Hue += step) {
        const float H = static_cast<float>(Wide(engine.Hue) * 6 / 255 - 1);
        for (engine.Saturation = 0; engine.Saturation < 256; engine.Saturation += step) {
            const float S = static_cast<float>(Wide(engine.Saturation) / 255);
            std::transform(distinct.begin(), distinct.end(), byLightness.begin(),
                           [&](float L) { return Expected(H, S, L); });
            engine.Process(source, result);
            wrong += CountWrong(result, byLightness, lightnessOf);
            compared += static_cast<long long>(lightnessOf.size());
        }
    }
    std::printf("%lld colours compared, of %zu lightnesses; %lld wrong\n", compared, distinct.size(), wrong);
    return compared > 0 && wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ornavo

int main(int argc, char** argv) {
    const int step = argc > 1 ? std::atoi(argv[1]) : 1;
    if (argc > 2 || step < 1) return std::fputs("usage: check_colourise [STEP]\n", stderr), 2;
    return ornavo::Run(step);
}
