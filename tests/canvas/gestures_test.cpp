// SPDX-License-Identifier: MIT
#include "canvas/gesture_math.h"

#include <climits>

#include "canvas/corner_math.h"
#include "document/codes.h"

namespace ornavo {
namespace {

constexpr Grid Free = {}, Tens = {true, 10, 10}, Crossed = {true, 5, 20};

TEST(DragStep, TheWayIsRelativeAndTheSpacingsAreCrossed) {
    const struct {
        Point corner, way;
        int deadZone;
        Grid grid;
        std::optional<Point> to;
    } cases[] = {{{13, 7}, {1, -1}, 1, Free, {}},
                 {{13, 7}, {2, 0}, 1, Free, {{15, 7}}},
                 {{13, 7}, {0, 0}, 0, Free, {}},
                 {{13, 7}, {5, 5}, 1, Tens, {{13, 7}}},  // half a step: none, yet it is a drag
                 {{13, 7}, {11, 11}, 1, Crossed, {{33, 17}}},
                 {{13, 7}, {-31, -31}, 1, Crossed, {{-27, -23}}},
                 {{32760, 0}, {20, 20}, 1, Free, {{32760, 20}}}};
    for (const auto& c : cases) EXPECT_EQ(DragStep(c.corner, c.way, c.deadZone, c.grid), c.to) << c.way.x;
}

TEST(ResizeStep, EachHandleMovesItsSidesAndSnappedOnesLandOnTheGrid) {
    const Rect from = {100, 200, 50, 40};
    const Rect to[] = {{107, 203, 43, 37}, {100, 203, 50, 37}, {100, 203, 57, 37}, {100, 200, 57, 40},
                       {100, 200, 57, 43}, {100, 200, 50, 43}, {107, 200, 43, 43}, {107, 200, 43, 40}};
    for (int handle = 0; handle < 8; ++handle) {
        EXPECT_EQ(ResizeStep(handle, from, {7, 3}, Free), to[handle]) << handle;
        EXPECT_EQ(ResizeStep(handle, to[handle], {-7, -3}, Free), from) << handle << " back";
    }
    const struct {
        int handle;
        Rect from;
        Point way;
        Grid grid;
        Rect to;
    } cases[] = {{7, {13, 0, 40, 20}, {-7, 0}, Tens, {0, 0, 50, 20}},
                 {7, {13, 0, 43, 20}, {0, 0}, Tens, {10, 0, 40, 20}},
                 {5, {13, 13, 40, 45}, {0, 0}, Tens, {13, 13, 40, 40}},  // ties to even
                 {0, {13, 17, 42, 38}, {6, 11}, Crossed, {20, 40, 35, 20}},
                 {4, {13, 17, 42, 38}, {6, 11}, Crossed, {13, 17, 45, 60}},
                 {3, {10, 10, 20, 20}, {-50, 0}, Free, {10, 10, 0, 20}},  // past the other side
                 {0, {10, 10, 20, 20}, {50, 90}, Tens, {60, 100, 0, 0}}};
    for (const auto& c : cases)
        EXPECT_EQ(ResizeStep(c.handle, c.from, c.way, c.grid), c.to) << c.handle << " by " << c.way.x;
}

TEST(HandlePlaces, StandOutsideAndTheMiddleIsRounded) {
    const std::array<Point, 8> even = {
        {{3, 13}, {27, 13}, {50, 13}, {50, 32}, {50, 50}, {27, 50}, {3, 50}, {3, 32}}};
    EXPECT_EQ(HandlePlaces({10, 20, 40, 30}), even);
    for (const int left : {10, 11}) EXPECT_EQ(HandlePlaces({left, 20, 41, 33})[1].x, 28);  // 27.5, 28.5
}

TEST(NudgeStep, PlainMovesShiftSizesByOneCtrlByTen) {
    const struct {
        Point direction;
        int shift;
        Rect to;
    } cases[] = {{{1, 0}, 0, {6, 5, 8, 10}},  {{0, -1}, 0, {5, 4, 8, 10}}, {{1, 0}, 1, {5, 5, 9, 10}},
                 {{0, 1}, 1, {5, 5, 8, 11}},  {{-1, 0}, 3, {5, 5, 7, 10}}, {{1, 0}, 2, {5, 5, 18, 10}},
                 {{-1, 0}, 2, {5, 5, 8, 10}},  // it would fall below 0
                 {{0, 1}, 6, {5, 5, 8, 20}},  {{0, 1}, 4, {5, 5, 8, 10}},  {{0, -1}, 5, {5, 5, 8, 9}},
                 {{0, -1}, 2, {5, 5, 8, 0}}};
    for (const auto& c : cases)
        EXPECT_EQ(NudgeStep({5, 5, 8, 10}, c.direction, c.shift), c.to) << c.direction.x << c.shift;
    for (const int shift : {1, 2, 4, 5}) EXPECT_EQ(CornerNudge({-1, 0}, shift), (Point{-10, 0})) << shift;
    EXPECT_EQ(CornerNudge({0, 1}, 0), (Point{0, 1}));
}

TEST(CornerMath, AStepFollowsThePointerOnTheCanvasAndOnTheGrid) {
    const struct {
        Point handle, down, pointer;
        bool snap;  // to a grid of 10 by 20; steps across take its Y and steps down its X
        std::optional<Point> to;
    } steps[] = {{{50, 60}, {2, 2}, {7, -1}, false, {{55, 57}}},
                 {{0, 0}, {2, 2}, {-5, -9}, false, {{-2, -2}}},
                 {{790, 590}, {2, 2}, {60, 60}, false, {{797, 597}}},
                 {{50, 60}, {INT_MIN, 0}, {INT_MAX, 0}, false, {{797, 60}}},
                 {{900, 900}, {3, 4}, {3, 4}, false, {}},
                 {{50, 60}, {0, 0}, {11, 6}, true, {{70, 70}}},
                 {{50, 60}, {0, 0}, {10, 5}, true, {{50, 60}}},  // half goes to the even number of steps
                 {{50, 60}, {0, 0}, {-30, -15}, true, {{10, 40}}}};
    for (const auto& s : steps)
        EXPECT_EQ(CornerStep({s.handle, s.down, s.pointer, s.snap, 10, 20, {800, 600}}), s.to) << s.pointer.x;
}

TEST(CornerMath, ANewPointKeepsToAnEdgeNearbyAndASideIsHotThreePixelsRound) {
    for (const auto& [at, before, align] : {std::tuple{99, AlignEnd, AlignStart},
                                            {100, AlignMiddle, AlignMiddle},
                                            {700, AlignStretch, AlignStretch},
                                            {701, AlignStart, AlignEnd}})
        EXPECT_EQ(AlignOfNewPoint(at, 800, before), align) << at;
    constexpr Point From = {300, 300}, To = {0, 0};
    for (const Point hot : {Point{300, 0}, {-3, -3}, {303, 303}, {150, 20}})
        EXPECT_TRUE(IsNearSide(hot, From, To)) << hot.x;
    for (const Point cold : {Point{-4, 0}, {304, 300}, {10, 304}})
        EXPECT_FALSE(IsNearSide(cold, From, To)) << cold.x;
    EXPECT_TRUE(IsNearSide({0, 0}, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}));
}

}  // namespace
}  // namespace ornavo
