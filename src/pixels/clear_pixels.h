// SPDX-License-Identifier: MIT
// Transparent pixels for a file format that has only a key colour.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "pixels/cdibsection.h"

namespace ornavo {

/// The set of a picture's pixels that are to be transparent. Colours are 0x00RRGGBB. All pictures passed in
/// have the size of the first, or are empty.
class ClearPixels {
public:
    ClearPixels() = default;  // no pixel
    /// The pixels whose alpha is below 128, from 32-bit words 0xAA?????? laid out as for CreateFromPicture.
    ClearPixels(const std::uint8_t* words, int Width, int Height, std::ptrdiff_t bytesPerRow);

    bool Any() const { return any_; }
    bool AtTopLeft() const { return !clear_.empty() && clear_.front(); }
    void AddColour(const cDIBSection& picture, std::uint32_t colour);  // adds all pixels of this colour
    void Paint(cDIBSection& picture, std::uint32_t colour) const;
    /// A colour that no other pixel has: magenta, or the next free one after it.
    std::uint32_t UnusedColour(const cDIBSection& picture) const;

private:
    std::vector<bool> clear_;  // row by row from the top left
    bool any_ = false;
};

/// 0x00RRGGBB; black without a picture.
std::uint32_t TopLeftColour(const cDIBSection& picture);

}  // namespace ornavo
