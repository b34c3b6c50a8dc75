// SPDX-License-Identifier: MIT
// The pixels of a picture that are to be clear in a file that has one colour for that and no transparency.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "pixels/cdibsection.h"

namespace ornavo {

/// Colours are 0x00RRGGBB. All pictures are of the size of the first one, or empty.
class ClearPixels {
public:
    ClearPixels() = default;  // none
    /// Those of 32-bit words 0xAA?????? whose alpha is below 128; the words lie as in CreateFromPicture.
    ClearPixels(const std::uint8_t* words, int Width, int Height, std::ptrdiff_t bytesPerRow);

    bool Any() const { return any_; }
    bool AtTopLeft() const { return !clear_.empty() && clear_.front(); }
    void AddColour(const cDIBSection& picture, std::uint32_t colour);  // all pixels of it
    void Paint(cDIBSection& picture, std::uint32_t colour) const;
    /// A colour that no other pixel has: magenta, or the first free one from there.
    std::uint32_t UnusedColour(const cDIBSection& picture) const;

private:
    std::vector<bool> clear_;  // row by row from the top left
    bool any_ = false;
};

/// Black without a picture.
std::uint32_t TopLeftColour(const cDIBSection& picture);

}  // namespace ornavo
