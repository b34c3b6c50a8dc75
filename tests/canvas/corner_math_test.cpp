// SPDX-License-Identifier: MIT
#include "canvas/corner_math.h"

#include <gtest/gtest.h>

#include <climits>

#include "document/codes.h"

namespace ornavo {
namespace {

struct Step {
    Point handle, down, pointer;
    bool snap;
    Point expected;
};

TEST(CornerMath, AStepFollowsThePointerOnTheCanvasAndOnTheGrid) {
    constexpr Step Steps[] = {
        {{50, 60}, {2, 2}, {7, -1}, false, {55, 57}},
        {{0, 0}, {2, 2}, {-5, -9}, false, {-2, -2}},
        {{790, 590}, {2, 2}, {60, 60}, false, {797, 597}},
        {{50, 60}, {INT_MIN, 0}, {INT_MAX, 0}, false, {797, 60}},
        // The grid is 10 by 20; steps across take its Y and steps down its X.
        {{50, 60}, {0, 0}, {9, 4}, true, {50, 60}},
        {{50, 60}, {0, 0}, {11, 6}, true, {70, 70}},
        {{50, 60}, {0, 0}, {10, 5}, true, {50, 60}},   // half goes to the even number of steps
        {{50, 60}, {0, 0}, {30, 15}, true, {90, 80}},  // one and a half are two
        {{50, 60}, {0, 0}, {-30, -15}, true, {10, 40}},
    };
    for (const Step& step : Steps) {
        const auto next = CornerStep({step.handle, step.down, step.pointer, step.snap, 10, 20, {800, 600}});
        ASSERT_TRUE(next);
        EXPECT_EQ(next->x, step.expected.x) << "pointer " << step.pointer.x << ", " << step.pointer.y;
        EXPECT_EQ(next->y, step.expected.y) << "pointer " << step.pointer.x << ", " << step.pointer.y;
    }
    EXPECT_FALSE(CornerStep({{900, 900}, {3, 4}, {3, 4}, false, 10, 20, {800, 600}}));
}

TEST(CornerMath, ANewPointKeepsToAnEdgeNearby) {
    struct Row {
        int at, before, expected;
    };
    constexpr Row Rows[] = {
        {99, AlignEnd, AlignStart},        {100, AlignMiddle, AlignMiddle}, {100, AlignEnd, AlignEnd},
        {700, AlignStretch, AlignStretch}, {701, AlignStart, AlignEnd},     {-5, AlignEnd, AlignStart},
    };
    for (const Row& row : Rows) EXPECT_EQ(AlignOfNewPoint(row.at, 800, row.before), row.expected) << row.at;
}

TEST(CornerMath, ASideIsHotOverItsBoxAndThreePixelsMore) {
    constexpr Point From = {300, 300}, To = {0, 0};
    for (const Point hot : {Point{300, 0}, {-3, -3}, {303, 303}, {150, 20}})
        EXPECT_TRUE(IsNearSide(hot, From, To)) << hot.x << ", " << hot.y;
    for (const Point cold : {Point{-4, 0}, {304, 300}, {10, 304}})
        EXPECT_FALSE(IsNearSide(cold, From, To)) << cold.x << ", " << cold.y;
    EXPECT_TRUE(IsNearSide({0, 0}, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}));
}

}  // namespace
}  // namespace ornavo
