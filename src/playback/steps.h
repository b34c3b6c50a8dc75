// SPDX-License-Identifier: MIT
// What seems to play, as numbers: each step takes the state before and gives the one after. No window, no
// clock.
#pragma once

#include <cstdint>
#include <string>

#include "base/geometry.h"

namespace ornavo {

inline constexpr int ScrollInterval = 40, SeekerInterval = 500;  // milliseconds
inline constexpr int ScrollPause = 40;                           // ticks at either end of a caption's way
inline constexpr double SongLength = 300000, SongStart = 60000;  // milliseconds
inline constexpr int VolumeTop = 255, VolumeStart = 128;

enum ScrollDirection { ScrollsLeft = 1, ScrollsBack = 2 };

/// The text of an info element and how far it has scrolled. Ticks and pixels.
struct InfoCaption {
    std::string Caption;
    std::int32_t ScrollMax = 0;  // measured width of the text
    std::int32_t ScrollPos = 0;  // left edge of the text: 0 or negative
    std::int32_t ScrollDir = ScrollsLeft;
    std::int32_t ScrollWait = 0;  // ticks left of a pause
    bool operator==(const InfoCaption&) const = default;
};

/// A text that has just been set: at its start, pausing.
InfoCaption NewCaption(std::string text, int width);

/// One tick of a caption in a box of that width, by `speed` pixels. False when the tick changes nothing that
/// could be drawn: the text fits and there is no seek bar, or there is none and the text pauses.
bool ScrollStep(InfoCaption& caption, int boxWidth, std::int32_t speed, bool hasSeeker);

/// Half a second of song, from the start again after its end.
double SeekStep(double position);

/// Where the bar of an element stands in its box: the offsets are those of its sides from the box's.
struct SeekBar {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};
/// Pixels of the box; a width or height below 1 shows nothing. Failure 6 beyond 32 bits.
Rect SeekBarRect(const SeekBar& bar, Size box, double position);
/// The song position of a press at x. Failure 11 where the bar has no length.
double SeekAt(const SeekBar& bar, int boxWidth, int x);

/// The volume changed by that much, rounded and held within 0 and 255. Failure 6 beyond 32 bits.
int VolumeBy(int volume, double change);
/// Of a volume picture that fills from the left, and of one that rises from below.
int VolumeAcross(int boxWidth, int x);
int VolumeUp(int boxHeight, int y);
/// Of a dial: whole degrees clockwise, 0 to 359.
int VolumeAngle(int volume);

}  // namespace ornavo
