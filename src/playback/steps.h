// SPDX-License-Identifier: MIT
// The arithmetic of the playback: each step computes the next state from the last. No window, no clock.
#pragma once

#include <cstdint>
#include <string>

#include "base/geometry.h"

namespace ornavo {

inline constexpr int ScrollInterval = 40, SeekerInterval = 500;  // milliseconds
inline constexpr int ScrollPause = 40;                           // ticks of a caption at either end
inline constexpr double SongLength = 300000, SongStart = 60000;  // milliseconds
inline constexpr int VolumeTop = 255, VolumeStart = 128;

enum ScrollDirection { ScrollsLeft = 1, ScrollsBack = 2 };

/// The text of an info element and its scrolling, in ticks and pixels.
struct InfoCaption {
    std::string Caption;
    std::int32_t ScrollMax = 0;  // width of the text
    std::int32_t ScrollPos = 0;  // left edge of the text, 0 or less
    std::int32_t ScrollDir = ScrollsLeft;
    std::int32_t ScrollWait = 0;  // remaining ticks of a pause
    bool operator==(const InfoCaption&) const = default;
};

/// A caption at its start, with a pause before it scrolls. `width` is the text's in pixels.
InfoCaption NewCaption(std::string text, int width);

/// One tick of a caption in a box of this width, by `speed` pixels. False if nothing needs to be drawn:
/// without a seek bar, when the text fits or pauses.
bool ScrollStep(InfoCaption& caption, int boxWidth, std::int32_t speed, bool hasSeeker);

/// The position after half a second, in milliseconds; starts again after the end of the song.
double SeekStep(double position);

/// The distances of a seek bar's sides from those of its box, in pixels.
struct SeekBar {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};
/// The filled part of the bar in pixels of the box; empty if its width or height is below 1. Failure 6 beyond
/// 32 bits.
Rect SeekBarRect(const SeekBar& bar, Size box, double position);
/// The song position in milliseconds for a press at x. Failure 11 if the bar has no length.
double SeekAt(const SeekBar& bar, int boxWidth, int x);

/// The changed volume, rounded and limited to 0 to VolumeTop. Failure 6 beyond 32 bits.
int VolumeBy(int volume, double change);
/// The volume for a press on a volume picture that fills from the left, or from below.
int VolumeAcross(int boxWidth, int x);
int VolumeUp(int boxHeight, int y);
/// The angle of a dial in whole degrees clockwise, 0 to 359.
int VolumeAngle(int volume);

}  // namespace ornavo
