// SPDX-License-Identifier: MIT
// Recolours a whole picture: every pixel gets one hue and saturation, and keeps its lightness.
#pragma once

#include <cstdint>

#include "pixels/cdibsection.h"
#include "pixels/colour_table.h"

namespace ornavo {

/// The recolouring with the user's two settings.
class cColourise {
public:
    std::int32_t Hue = 0;         // 0 to 255 is once around the circle, magenta to magenta
    std::int32_t Saturation = 0;  // 0 (grey) to 255

    /// Writes the recoloured Source into Dest, which has the same size or is the same picture. Three bytes of
    /// padding at the end of a row are recoloured like a pixel; fewer are left as they are. Failure 9
    /// part-way if Dest is smaller; 6 part-way if a setting outside 0 to 255 gives a channel outside of it.
    void Process(const cDIBSection& Source, cDIBSection& Dest);
    /// Does the same with both conversions for every pixel. Slow; the tests compare Process with it.
    void ProcessByRule(const cDIBSection& Source, cDIBSection& Dest) const;

private:
    ColourTable table_;  // made for the last call
};

}  // namespace ornavo
