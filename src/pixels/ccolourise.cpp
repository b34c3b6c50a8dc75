// SPDX-License-Identifier: MIT
#include "pixels/ccolourise.h"

#include "base/failure.h"
#include "pixels/mhlsrgb.h"

namespace ornavo {

namespace {

bool InRange(std::int32_t setting) {
    return setting >= 0 && setting <= 255;
}

std::uint8_t ToByte(std::int32_t channel) {
    if (!InRange(channel)) throw Failure(Failure::Overflow, "cColourise");
    return static_cast<std::uint8_t>(channel);
}

std::uint8_t& At(cDIBSection& picture, int x, int y) {
    if (x >= picture.BytesPerScanLine() || y >= picture.Height())
        throw Failure(Failure::NotFound, "cColourise", "The picture to write into is too small");
    return picture.ScanLine(y)[x];
}

}  // namespace

void cColourise::Process(const cDIBSection& Source, cDIBSection& Dest) {
    const bool sameSize = Source.Width() == Dest.Width() && Source.Height() == Dest.Height();
    if (!sameSize || !InRange(Hue) || !InRange(Saturation)) return ProcessByRule(Source, Dest);
    table_.Make(Hue, Saturation);
    const std::int64_t stride = Source.BytesPerScanLine(), height = Source.Height();
    if (stride % 3 == 0)  // rows without padding that must stay as it is
        return table_.Apply(Source.DIBSectionBitsPtr(), Dest.DIBSectionBitsPtr(), stride / 3 * height);
    for (int y = 0; y < height; ++y) table_.Apply(Source.ScanLine(y), Dest.ScanLine(y), stride / 3);
}

void cColourise::ProcessByRule(const cDIBSection& Source, cDIBSection& Dest) const {
    const float targetHue = TargetHue(Hue), targetSaturation = TargetSaturation(Saturation);
    // Column by column, because the order decides what has been written when a failure ends it part-way.
    for (int x = 0; x <= Source.BytesPerScanLine() - 3; x += 3) {
        for (int y = 0; y < Source.Height(); ++y) {
            const std::uint8_t* from = Source.ScanLine(y) + x;
            float unusedHue, unusedSaturation, lightness;
            RGBToHLS(from[2], from[1], from[0], unusedHue, unusedSaturation, lightness);
            std::int32_t r, g, b;
            HLSToRGB(targetHue, targetSaturation, lightness, r, g, b);
            At(Dest, x + 2, y) = ToByte(r);
            At(Dest, x + 1, y) = ToByte(g);
            At(Dest, x, y) = ToByte(b);
        }
    }
}

}  // namespace ornavo
