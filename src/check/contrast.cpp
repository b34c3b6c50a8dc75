// SPDX-License-Identifier: MIT
#include "check/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ornavo {
namespace {

/// The light of each value of an sRGB channel, 0 to 1.
std::array<double, 256> MakeLights() {
    std::array<double, 256> lights = {};
    for (std::size_t i = 0; i < lights.size(); ++i) {
        const double part = static_cast<double>(i) / 255;
        lights[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return lights;
}

double LuminanceOf(QRgb colour) {
    static const std::array<double, 256> lights = MakeLights();
    const auto light = [](int value) { return lights[static_cast<std::size_t>(value)]; };
    return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) + 0.0722 * light(qBlue(colour));
}

}  // namespace

double ContrastOf(QRgb one, QRgb other) {
    const auto [dark, bright] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
    return (bright + 0.05) / (dark + 0.05);
}

double ContrastOf(QRgb text, const std::vector<QRgb>& grounds) {
    std::vector<double> contrasts(grounds.size());
    std::ranges::transform(grounds, contrasts.begin(), [=](QRgb ground) { return ContrastOf(text, ground); });
    const auto tenth = contrasts.begin() + static_cast<std::ptrdiff_t>(contrasts.size() / 10);
    std::ranges::nth_element(contrasts, tenth);
    return *tenth;
}

}  // namespace ornavo
