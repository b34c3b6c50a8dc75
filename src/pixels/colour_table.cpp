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
constexpr int Sums = 512;  // of two channels
constexpr int Kinds = 4;
constexpr std::uint32_t NoColour = ~0U;  // no pair has this key
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

std::array<float, Levels> Shares() {
    std::array<float, Levels> shares;
    for (int level = 0; level < Levels; ++level)
        shares[static_cast<std::size_t>(level)] = static_cast<float>(level / 255.0);
    return shares;
}

/// Which of the pairs with the same sum it is, 0 to 3. The shares of 255 are rounded to floats, so that two
/// pairs of a sum may differ in the last bit of the lightness. From 256 on, such a pair has both channels
/// above 127; below, the leading bit of its least channel is half that of its greatest.
constexpr std::uint8_t KindOf(std::uint8_t max, std::uint8_t min) {
    const auto twice = static_cast<std::uint8_t>(min << 1);
    const bool sameLeadingBit = (max ^ twice) < (max & twice);
    return static_cast<std::uint8_t>((sameLeadingBit ? 1 : 0) | (min >> 6 & 2));
}

/// The place in the table: the sum of the greatest and the least channel and, if wanted, the kind.
template <bool WithKind>
constexpr std::uint16_t KeyOf(std::uint8_t max, std::uint8_t min) {
    const int kind = WithKind ? KindOf(max, min) : 0;
    return static_cast<std::uint16_t>(max + min + kind * Sums);
}

/// The key of the pixel that would begin at each byte of a block, though only every third is needed: GCC
/// vectorises this loop, which is faster than taking the pixels apart. Reads two bytes beyond the block.
template <bool WithKind>
void FindKeys(const std::uint8_t* from, std::uint16_t* keys) {
    for (int i = 0; i < BlockBytes; ++i) {
        const std::uint8_t a = from[i], b = from[i + 1], c = from[i + 2];
        const std::uint8_t upper = a > b ? a : b, lower = a < b ? a : b;
        const std::uint8_t max = upper > c ? upper : c, min = lower < c ? lower : c;
        keys[i] = KeyOf<WithKind>(max, min);
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
    colours_.assign(Kinds * Sums, NoColour);
    const float targetHue = TargetHue(hue), targetSaturation = TargetSaturation(saturation);
    const std::array<float, Levels> shares = Shares();
    for (std::size_t max = 0; max < Levels; ++max) {
        for (std::size_t min = 0; min <= max; ++min) {
            const auto key = KeyOf<true>(static_cast<std::uint8_t>(max), static_cast<std::uint8_t>(min));
            if (colours_[key] == NoColour)
                colours_[key] = Packed(targetHue, targetSaturation, LightnessOf(shares[max], shares[min]));
        }
    }
    CompareKinds();
    hue_ = hue;
    saturation_ = saturation;
}

void ColourTable::CompareKinds() {
    sumIsEnough_ = true;
    for (std::size_t key = Sums; key < colours_.size(); ++key) {
        if (colours_[key] == NoColour) continue;
        std::uint32_t& colour = colours_[key % Sums];
        if (colour == NoColour) colour = colours_[key];
        if (colour != colours_[key]) sumIsEnough_ = false;
    }
}

void ColourTable::Apply(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const {
    sumIsEnough_ ? ApplyBy<false>(from, to, count) : ApplyBy<true>(from, to, count);
}

template <bool WithKind>
void ColourTable::ApplyBy(const std::uint8_t* from, std::uint8_t* to, std::int64_t count) const {
    const std::uint32_t* const colours = colours_.data();
    // The last block is left out because FindKeys reads beyond its block.
    for (; count > BlockPixels; count -= BlockPixels, from += BlockBytes, to += BlockBytes) {
        std::array<std::uint16_t, BlockBytes> keys;
        FindKeys<WithKind>(from, keys.data());
        for (std::size_t i = 0; i < BlockBytes - 6; i += 6)
            PutPair(to + i, colours[keys[i]], colours[keys[i + 3]]);
        // Write nothing beyond the block: with from == to, it has not been read yet.
        std::memcpy(to + BlockBytes - 6, &colours[keys[BlockBytes - 6]], 4);
        std::memcpy(to + BlockBytes - 3, &colours[keys[BlockBytes - 3]], 3);
    }
    for (; count > 0; --count, from += 3, to += 3) {
        const auto [min, max] = std::minmax({from[0], from[1], from[2]});
        std::memcpy(to, &colours[KeyOf<WithKind>(max, min)], 3);
    }
}

}  // namespace ornavo
