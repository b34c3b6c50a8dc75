// SPDX-License-Identifier: MIT
#include "render/placement.h"

#include "base/failure.h"
#include "document/codes.h"

namespace ornavo {
namespace {

/// Fields 30, 40 of a skin of 100, in windows that differ by an odd and an even number, larger and smaller.
struct Row {
    bool near, far, stretch;
    int window;
    int left, width;  // worked out by hand
    int top = left;   // the only place where the directions differ
};

constexpr Row Rows[] = {{true, false, false, 105, 30, 40},    {true, false, true, 105, 30, 42},
                        {true, false, true, 107, 30, 44},     {true, false, true, 94, 30, 37},
                        {false, true, false, 105, 75, 40},    {false, true, true, 105, 73, 42},
                        {false, true, true, 107, 74, 44, 73}, {false, true, true, 95, 68, 38, 67},
                        {false, false, true, 105, 32, 42},    {true, true, false, 105, 30, 45},
                        {true, true, true, 94, 30, 34},       {false, false, false, 105, 32, 40},
                        {false, false, false, 107, 34, 40},   {false, false, false, 94, 27, 40},
                        {false, false, false, 95, 28, 40},    {false, false, true, 107, 32, 43}};

dbLayoutElement ElementOf(bool near, bool far, bool stretch) {
    dbLayoutElement e;
    e.LeftX = e.TopY = 30;
    e.WidthX = e.HeightY = 40;
    e.LockLeft = e.LockTop = near;
    e.LockRight = e.LockBottom = far;
    e.StretchWidth = e.StretchHeight = stretch;
    return e;
}

Rect Fields(const dbLayoutElement& e) {
    return {e.LeftX, e.TopY, e.WidthX, e.HeightY};
}

TEST(Placement, EveryRowInBothDirectionsAndBack) {
    for (const Row& row : Rows) {
        const dbLayoutElement e = ElementOf(row.near, row.far, row.stretch);
        EXPECT_EQ(GetElementRect(e, {row.window, row.window, 100, 100}),
                  (Rect{row.left, row.top, row.width, row.width}))
            << &row - Rows;
        for (const int window : {100, 104, 120, 96, 80}) {  // even differences leave nothing to round
            const Frame frame = {window, window, 100, 100};
            dbLayoutElement after = e;
            WriteElementBounds(after, GetElementRect(e, frame), frame);
            // A scaled element may settle a pixel away.
            const int slack = !row.near && !row.far && row.stretch ? 1 : 0;
            const Rect at = Fields(after);
            for (const int start : {at.left, at.top}) EXPECT_NEAR(start, 30, slack) << &row - Rows;
            for (const int extent : {at.width, at.height}) EXPECT_NEAR(extent, 40, slack) << &row - Rows;
        }
    }
    dbLayoutElement mixed = ElementOf(true, false, false);
    mixed.LockTop = false;
    mixed.LockBottom = true;
    EXPECT_EQ(GetElementRect(mixed, {150, 130, 100, 100}), (Rect{30, 100, 40, 40}));
}

TEST(Placement, WhatHasNoNumberIsAFailure) {
    dbLayoutElement stretched = ElementOf(false, false, true), far = ElementOf(true, true, false);
    EXPECT_THROW(GetElementRect(stretched, {100, 100, 0, 0}), Failure);
    EXPECT_THROW(WriteElementBounds(stretched, {1, 1, 1, 1}, {0, 0, 100, 100}), Failure);
    EXPECT_EQ(Fields(stretched), (Rect{30, 30, 40, 40}));
    far.WidthX = 2'147'483'647;
    EXPECT_THROW(GetElementRect(far, {101, 101, 100, 100}), Failure);
    dbPoint point;
    point.X = 5, point.Y = 6, point.VAlign = AlignStretch;
    EXPECT_THROW(SetPointPosition(point, 40, 40, {100, 0, 100, 100}), Failure);
    EXPECT_EQ(point.X, 5);
}

TEST(PointPlaces, EachAlignmentInBothDirectionsAndBack) {
    for (const auto& [align, distance, window, plain, region] : {std::tuple{AlignStart, 10, 121, 10, 10},
                                                                 {AlignMiddle, 10, 121, 20, 20},
                                                                 {AlignMiddle, 11, 121, 22, 22},
                                                                 {AlignEnd, 10, 121, 111, 112},
                                                                 {AlignStretch, 50, 121, 60, 60},
                                                                 {AlignStretch, 50, 123, 62, 62},
                                                                 {AlignStart, -5, 90, -5, -5}}) {
        const dbPoint point = {distance, 7, AlignStart, align, 1}, down = {7, distance, align, AlignStart, 1};
        const Frame across = {window, 300, 100, 200}, upright = {300, window, 200, 100};
        EXPECT_EQ(GetPointPosition(point, across, CornerOf::Shape), (Point{plain, 7})) << align;
        EXPECT_EQ(GetPointPosition(point, across, CornerOf::Region), (Point{region, 7})) << align;
        EXPECT_EQ(GetPointPosition(down, upright, CornerOf::Shape), (Point{7, plain})) << align;
        EXPECT_EQ(GetPointPosition(down, upright, CornerOf::Region), (Point{7, region})) << align;
    }
    for (const auto& [align, window, at, distance] : {std::tuple{AlignStart, 105, 30, 30},
                                                      {AlignMiddle, 105, 30, 28},
                                                      {AlignMiddle, 107, 30, 26},
                                                      {AlignMiddle, 95, 30, 32},
                                                      {AlignEnd, 105, 30, 75},
                                                      {AlignStretch, 150, 30, 20},
                                                      {AlignStretch, 40, 9, 22},
                                                      {AlignEnd, 105, -2, 107}}) {
        dbPoint across, down;
        across.HAlign = down.VAlign = align;
        SetPointPosition(across, at, 7, {window, 300, 100, 200});
        SetPointPosition(down, 7, at, {300, window, 200, 100});
        EXPECT_EQ((Point{across.X, across.Y}), (Point{distance, 7})) << align << " in " << window;
        EXPECT_EQ((Point{down.X, down.Y}), (Point{7, distance})) << align << " in " << window;
    }
}

}  // namespace
}  // namespace ornavo
