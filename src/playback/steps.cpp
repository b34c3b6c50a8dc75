// SPDX-License-Identifier: MIT
#include "playback/steps.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/failure.h"
#include "base/numbers.h"

namespace ornavo {
namespace {

constexpr double SeekerStep = SeekerInterval;  // milliseconds of song per tick, in real time
constexpr double DegreesPerVolume = 1.2;

std::int32_t Clamped(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

void Turn(InfoCaption& caption, ScrollDirection direction) {
    caption.ScrollDir = direction;
    caption.ScrollWait = ScrollPause;
}

void Move(InfoCaption& caption, int boxWidth, std::int32_t speed) {
    const bool left = caption.ScrollDir == ScrollsLeft;
    const std::int64_t to = std::int64_t{caption.ScrollPos} + (left ? -std::int64_t{speed} : speed);
    caption.ScrollPos = Clamped(to);
    if (left && to + caption.ScrollMax <= boxWidth) Turn(caption, ScrollsBack);
    if (!left && to >= 0) {
        caption.ScrollPos = 0;
        Turn(caption, ScrollsLeft);
    }
}

double Length(const SeekBar& bar, int boxWidth) {
    return static_cast<double>(boxWidth) - bar.left - bar.right;
}

}  // namespace

InfoCaption NewCaption(std::string text, int width) {
    return {std::move(text), width, 0, ScrollsLeft, ScrollPause};
}

bool ScrollStep(InfoCaption& caption, int boxWidth, std::int32_t speed, bool hasSeeker) {
    const bool fits = boxWidth >= caption.ScrollMax;
    if (fits && !hasSeeker) return false;
    if (caption.ScrollWait > 0) {
        --caption.ScrollWait;
        return hasSeeker;
    }
    if (fits)
        caption.ScrollPos = 0;
    else
        Move(caption, boxWidth, speed);
    return true;
}

double SeekStep(double position) {
    const double next = position + SeekerStep;
    return next > SongLength ? 0 : next;
}

Rect SeekBarRect(const SeekBar& bar, Size box, double position) {
    return {bar.left, bar.top, ToLong(Length(bar, box.width) * position / SongLength),
            ToLong(static_cast<double>(box.height) - bar.top - bar.bottom)};
}

double SeekAt(const SeekBar& bar, int boxWidth, int x) {
    const double length = Length(bar, boxWidth);
    if (length == 0) throw Failure(Failure::DivisionByZero, "Playback");
    const double along = std::min(std::max(static_cast<double>(x) - bar.left, 0.0), length);
    return along / length * SongLength;
}

int VolumeBy(int volume, double change) {
    return std::clamp(ToLong(volume + change), 0, VolumeTop);
}

int VolumeAcross(int boxWidth, int x) {
    return ToLong(std::clamp(x, 0, boxWidth) * double{VolumeTop} / boxWidth);
}

int VolumeUp(int boxHeight, int y) {
    return ToLong(VolumeTop - std::clamp(y, 0, boxHeight) * double{VolumeTop} / boxHeight);
}

int VolumeAngle(int volume) {
    const int angle = ToLong((volume - VolumeStart) * DegreesPerVolume);
    return angle < 0 ? angle + 360 : angle;
}

}  // namespace ornavo
