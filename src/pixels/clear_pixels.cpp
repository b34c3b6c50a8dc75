// SPDX-License-Identifier: MIT
#include "pixels/clear_pixels.h"

#include <algorithm>
#include <cstring>

namespace ornavo {
namespace {

constexpr std::uint32_t ClearBelow = 128;  // alpha
constexpr std::uint32_t AllColours = 1u << 24, Magenta = 0xFF00FF;

std::uint32_t ColourOf(const std::uint8_t* pixel) {
    return std::uint32_t{pixel[2]} << 16 | std::uint32_t{pixel[1]} << 8 | pixel[0];
}

/// Calls `use` with the bytes of each pixel and its number, row by row from the top left.
template <class Picture, class Use>
void ForEach(Picture& picture, Use use) {
    std::size_t number = 0;
    for (int y = picture.Height() - 1; y >= 0; --y) {
        auto* pixel = picture.ScanLine(y);
        for (int x = 0; x < picture.Width(); ++x, pixel += 3) use(pixel, number++);
    }
}

}  // namespace

ClearPixels::ClearPixels(const std::uint8_t* words, int Width, int Height, std::ptrdiff_t bytesPerRow) {
    clear_.reserve(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height));
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x) {
            std::uint32_t word = 0;
            std::memcpy(&word, words + y * bytesPerRow + std::ptrdiff_t{x} * 4, sizeof word);
            clear_.push_back(word >> 24 < ClearBelow);
            any_ = any_ || clear_.back();
        }
}

void ClearPixels::AddColour(const cDIBSection& picture, std::uint32_t colour) {
    ForEach(picture, [&](const std::uint8_t* pixel, std::size_t number) {
        if (ColourOf(pixel) == colour) any_ = clear_[number] = true;
    });
}

void ClearPixels::Paint(cDIBSection& picture, std::uint32_t colour) const {
    const std::uint8_t bytes[] = {static_cast<std::uint8_t>(colour), static_cast<std::uint8_t>(colour >> 8),
                                  static_cast<std::uint8_t>(colour >> 16)};
    ForEach(picture, [&](std::uint8_t* pixel, std::size_t number) {
        if (clear_[number]) std::copy_n(bytes, 3, pixel);
    });
}

std::uint32_t ClearPixels::UnusedColour(const cDIBSection& picture) const {
    std::vector<bool> used(AllColours);
    ForEach(picture, [&](const std::uint8_t* pixel, std::size_t number) {
        if (!clear_[number]) used[ColourOf(pixel)] = true;
    });
    auto free = std::find(used.begin() + Magenta, used.end(), false);
    if (free == used.end()) free = std::find(used.begin(), used.end(), false);
    return static_cast<std::uint32_t>(free - used.begin()) % AllColours;
}

std::uint32_t TopLeftColour(const cDIBSection& picture) {
    return picture.Height() > 0 ? ColourOf(picture.ScanLine(picture.Height() - 1)) : 0;
}

}  // namespace ornavo
