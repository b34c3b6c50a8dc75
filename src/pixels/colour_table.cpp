// SPDX-License-Identifier: MIT
#include "pixels/colour_table.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "pixels/mhlsrgb.h"

namespace ornavo {

namespace {

constexpr int Levels = 256;
constexpr int BlockPixels = 64;
constexpr int BlockBytes = BlockPixels * 3;

std::uint32_t Packed(float hue, float saturation, float lightness) {
    std::int32_t r, g, b;
    HLSToRGB(hue, saturation, lightness, r, g, b);
    const std::array<std::uint8_t, 4> bytes{static_cast<std::uint8_t>(b), static_cast<std::uint8_t>(g),
                                            static_cast<std::uint8_t>(r), 0};
    std::uint32_t colour;
    std::memcpy(&colour, bytes.data(), sizeof colour);
    return colour;
}

/// The last colour of a sum of greatest and least channel. Pairs of the same sum have nearly always, but not
/// always, the same lightness, so it is compared.
struct Remembered {
    float lightness = -1;
    std::uint32_t colour = 0;
};

std::array<float, Levels> Shares() {
    std::array<float, Levels> shares;
    for (int level = 0; level < Levels; ++level)
        shares[static_cast<std::size_t>(level)] = static_cast<float>(level / 255.0);
    return shares;
}

/// The table index of the pixel that would begin at each byte of a block, though only every third is needed:
/// GCC vectorises this loop, which is faster than taking the pixels apart. Reads two bytes beyond the block.
void Indices(const std::uint8_t* from, std::uint16_t* indices) {
    for (int i = 0; i < BlockBytes; ++i) {
        const std::uint8_t a = from[i], b = from[i + 1], c = from[i + 2];
        const std::uint8_t upper = a > b ? a : b, lower = a < b ? a : b;
        const std::uint8_t max = upper > c ? upper : c, min = lower < c ? lower : c;
        indices[i] = static_cast<std::uint16_t>(max << 8 | min);
    }
}

/// Writes two pixels and two bytes more, which the next pair overwrites: one wide store is faster than
/// several.
void PutPair(std::uint8_t* to, std::uint64_t first, std::uint64_t second) {
    constexpr bool LowByteFirst = std::endian::native == std::endian::little;
    const std::uint64_t pair = LowByteFirst ? first | second << 24 : first << 32 | second << 8;
    std::memcpy(to, &pair, sizeof pair);
}

}  // namespace

float TargetHue(int hue) {
    return static_cast<float>(hue * 6.0 / 255.0 - 1.0);
}

float TargetSaturation(int saturation) {
    return static_cast<float>(saturation / 255.0);
}

void ColourTable::Make(int hue, int saturation) {
    if (hue == hue_ && saturation == saturation_) return;
    colours_.resize(Levels * Levels);
    const float targetHue = TargetHue(hue), targetSaturation = TargetSaturation(saturation);
    const std::array<float, Levels> shares = Shares();
    std::array<Remembered, 2 * Levels> bySum;
    for (std::size_t max = 0; max < Levels; ++max) {
        for (std::size_t min = 0; min <= max; ++min) {
            const float lightness = LightnessOf(shares[max], shares[min]);
            Remembered& last = bySum[max + min];
            if (last.lightness != lightness)
                last = {lightness, Packed(targetHue, targetSaturation, lightness)};
            colours_[max * Levels + min] = last.colour;
        }
    }
    hue_ = hue;
    saturation_ = saturation;
}

std::uint32_t ColourTable::ColourOf(const std::uint8_t* pixel) const {
    const auto [min, max] = std::minmax({pixel[0], pixel[1], pixel[2]});
    return colours_[std::size_t{max} * Levels + min];
}

void ColourTable::Apply(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const {
    const std::uint32_t* const colours = colours_.data();
    // The last block is left out because Indices reads beyond its block.
    for (; count > BlockPixels; count -= BlockPixels, from += BlockBytes, to += BlockBytes) {
        std::array<std::uint16_t, BlockBytes> indices;
        Indices(from, indices.data());
        for (std::size_t i = 0; i < BlockBytes - 6; i += 6)
            PutPair(to + i, colours[indices[i]], colours[indices[i + 3]]);
        // Write nothing beyond the block: with from == to, it has not been read yet.
        std::memcpy(to + BlockBytes - 6, &colours[indices[BlockBytes - 6]], 4);
        std::memcpy(to + BlockBytes - 3, &colours[indices[BlockBytes - 3]], 3);
    }
    for (; count > 0; --count, from += 3, to += 3) {
        const std::uint32_t colour = ColourOf(from);
        std::memcpy(to, &colour, 3);
    }
}

}  // namespace ornavo
