// SPDX-License-Identifier: MIT
#include "playback/steps.h"

#include "support/failure_number.h"

namespace ornavo {
namespace {

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
                {"to the left", {"", 60, -2, 1, 0}, 7, false, true, {"", 60, -9, 1, 0}},
                {"turns at the end", {"", 60, -8, 1, 0}, 2, false, true, {"", 60, -10, 2, 40}},
                {"back", {"", 60, -4, 2, 0}, 3, false, true, {"", 60, -1, 2, 0}},
                {"turns at the start", {"", 60, -3, 2, 0}, 3, false, true, {"", 60, 0, 1, 40}},
                {"no further", {"", 60, -1, 2, 0}, 3, false, true, {"", 60, 0, 1, 40}}};
    for (const auto& row : rows) {
        InfoCaption caption = row.before;
        EXPECT_EQ(ScrollStep(caption, 50, row.speed, row.hasSeeker), row.draws) << row.name;
        EXPECT_EQ(caption, row.after) << row.name;
    }
}

TEST(Steps, Seek) {
    EXPECT_EQ(NewCaption("A", 60), (InfoCaption{"A", 60, 0, 1, 40}));
    for (const auto& [from, to] : {std::pair{60000, 60500}, {299500, 300000}, {300000, 0}})
        EXPECT_EQ(SeekStep(from), to);
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
         {std::tuple{250, 20.0, 255}, {4, -10.0, 0}, {128, 10.5, 138}, {129, 10.5, 140}})
        EXPECT_EQ(VolumeBy(volume, change), after) << volume << ' ' << change;
    for (const auto& [volume, angle] : {std::pair{255, 152}, {0, 206}, {128, 0}, {127, 359}, {178, 60}})
        EXPECT_EQ(VolumeAngle(volume), angle) << volume;
    for (const auto& [at, across] : {std::pair{-5, 0}, {50, 128}, {101, 255}, {1, 3}}) {
        EXPECT_EQ(VolumeAcross(100, at), across) << at;
        EXPECT_EQ(VolumeUp(100, 100 - at), across) << at;
    }
}

}  // namespace
}  // namespace ornavo
