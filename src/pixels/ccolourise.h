// SPDX-License-Identifier: MIT
// Recolours a whole picture: every pixel gets the one hue and saturation and keeps its lightness.
#pragma once

#include <cstdint>

#include "pixels/cdibsection.h"
#include "pixels/colour_table.h"

namespace ornavo {

class cColourise {
public:
    std::int32_t Hue = 0;         // 0 to 255 is once around the circle, from magenta to magenta
    std::int32_t Saturation = 0;  // 0, grey, to 255

    /// Writes the recoloured Source into Dest, which has the same size or is the same picture. Three bytes of
    /// padding at the end of a row are recoloured as if they were a pixel, less are left alone.
    /// Failure 9 part-way if Dest is smaller; 6 part-way if a setting outside 0 to 255 leads to a channel
    /// outside of it.
    void Process(const cDIBSection& Source, cDIBSection& Dest);
    /// The same bytes and failures pixel by pixel, through both conversions. Slow, and what Process is held
    /// against.
    void ProcessByRule(const cDIBSection& Source, cDIBSection& Dest) const;

private:
    ColourTable table_;  // of the last call
};

}  // namespace ornavo
