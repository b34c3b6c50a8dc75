// SPDX-License-Identifier: MIT
#include "playback/steps.h"

#include <gtest/gtest.h>

#include "support/failure_number.h"

namespace ornavo {
namespace {

constexpr int Hours = 2;

/// Where a caption that is `over` pixels too wide stands after so many ticks: a pause, the steps to the left,
/// a pause, the steps back.
int PosAfter(std::int64_t ticks, int over, int speed) {
    const int steps = (over + speed - 1) / speed;
    const auto phase = static_cast<int>(ticks % (2 * (ScrollPause + steps)));
    if (phase <= ScrollPause + steps) return -speed * std::max(0, phase - ScrollPause);
    return std::min(0, -speed * steps + speed * std::max(0, phase - 2 * ScrollPause - steps));
}

TEST(Steps, HoursOfScrollingKeepToTheFormula) {
    constexpr int Width = 80;
    for (const auto& [over, speed] : {std::pair{100, 3}, {1, 2}, {7, 7}, {412, 5}}) {
        InfoCaption caption = NewCaption("A", Width + over);
        for (std::int64_t tick = 1; tick <= Hours * 3600LL * 1000 / ScrollInterval; ++tick) {
            ScrollStep(caption, Width, speed, false);
            ASSERT_EQ(caption.ScrollPos, PosAfter(tick, over, speed)) << tick << ' ' << over << ' ' << speed;
        }
    }
    double position = SongStart;
    for (int half = 1; half <= Hours * 3600 * 2; ++half) {
        position = SeekStep(position);
        ASSERT_EQ(position, (120 + half) % 601 * 500) << half;
    }
}

TEST(Steps, Scroll) {
    const struct {
        const char* name;
        InfoCaption before;
        int speed;
        bool hasSeeker, draws;
        InfoCaption after;
    } rows[] = {{"fits exactly", {"", 50, 0, 1, 40}, 2, false, false, {"", 50, 0, 1, 40}},
                {"fits, with a bar", {"", 50, -9, 1, 0}, 2, true, true, {"", 50, 0, 1, 0}},
                {"pauses", {"", 60, 0, 1, 1}, 2, false, false, {"", 60, 0, 1, 0}},
                {"pauses, with a bar", {"", 60, 0, 1, 40}, 2, true, true, {"", 60, 0, 1, 39}},
                {"stands still", {"", 60, 0, 1, 0}, 0, false, true, {"", 60, 0, 1, 0}},
                {"an unknown way is back", {"", 150, -9, 0, 0}, 3, false, true, {"", 150, -6, 0, 0}},
                {"no further than numbers go",
                 {"", 150, -50, 1, 0},
                 INT32_MAX,
                 false,
                 true,
                 {"", 150, INT32_MIN, 2, 40}}};
    for (const auto& row : rows) {
        InfoCaption caption = row.before;
        EXPECT_EQ(ScrollStep(caption, 50, row.speed, row.hasSeeker), row.draws) << row.name;
        EXPECT_EQ(caption, row.after) << row.name;
    }
}

TEST(Steps, Seek) {
    const SeekBar bar = {10, 2, 30, 3};
    EXPECT_EQ(SeekBarRect(bar, {240, 20}, 150000), (Rect{10, 2, 100, 15}));
    EXPECT_EQ(SeekBarRect(bar, {240, 20}, 0), (Rect{10, 2, 0, 15}));
    EXPECT_EQ(SeekBarRect(bar, {45, 20}, 150000).width, 2);  // half to even
    for (const auto& [x, position] : {std::pair{110, 150000}, {0, 0}, {-70, 0}, {210, 300000}, {999, 300000}})
        EXPECT_EQ(SeekAt(bar, 240, x), position) << x;
    EXPECT_EQ(SeekAt(bar, 30, 20), SongLength);  // a bar of less than nothing
    EXPECT_EQ(FailureNumber([&] { SeekAt(bar, 40, 20); }), 11);
}

TEST(Steps, Volume) {
    for (const auto& [volume, change, after] :
         {std::tuple{250, 20.0, 255}, {4, -10.0, 0}, {128, 10.5, 138}, {129, 10.5, 140}, {77, 0.0, 77}})
        EXPECT_EQ(VolumeBy(volume, change), after) << volume << ' ' << change;
    EXPECT_EQ(FailureNumber([] { VolumeBy(1, 1e10); }), 6);
    for (const auto& [volume, angle] : {std::pair{255, 152}, {0, 206}, {128, 0}, {127, 359}, {178, 60}})
        EXPECT_EQ(VolumeAngle(volume), angle) << volume;
    for (const auto& [at, across] : {std::pair{-5, 0}, {0, 0}, {50, 128}, {100, 255}, {101, 255}, {1, 3}}) {
        EXPECT_EQ(VolumeAcross(100, at), across) << at;
        EXPECT_EQ(VolumeUp(100, 100 - at), across) << at;
    }
}

}  // namespace
}  // namespace ornavo
