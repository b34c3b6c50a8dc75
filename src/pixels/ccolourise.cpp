// SPDX-License-Identifier: MIT
#include "pixels/ccolourise.h"

#include <algorithm>
#include <thread>

#include "base/failure.h"
#include "pixels/bands.h"
#include "pixels/mhlsrgb.h"

namespace ornavo {

namespace {

constexpr std::int64_t PixelsPerWorker = 1 << 19;  // some 0.3 ms; to start a thread takes a tenth

/// One for each processor, but fewer for a small picture.
int WorkersFor(std::int64_t pixels) {
    const std::int64_t processors = std::thread::hardware_concurrency();
    return static_cast<int>(std::min(processors, pixels / PixelsPerWorker));
}

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
    const std::int64_t stride = Source.BytesPerScanLine();
    const bool isPadded = stride % 3 != 0;  // with padding that must stay as it is
    InBands(Source.Height(), WorkersFor(stride / 3 * Source.Height()), [&](int first, int end) {
        const int step = isPadded ? 1 : std::max(end - first, 1);  // rows at once
        for (int y = first; y < end; y += step)
            table_.Apply(Source.ScanLine(y), Dest.ScanLine(y), stride / 3 * step);
    });
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
