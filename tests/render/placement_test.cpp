// SPDX-License-Identifier: MIT
#include "render/placement.h"

#include <gtest/gtest.h>

#include "base/failure.h"
#include "document/codes.h"

namespace ornavo {
namespace {

/// Fields 30, 40 of a skin of 100, in windows that differ by an odd and an even number, larger and smaller.
struct Row {
    bool near = false, far = false, stretch = false;
    int window = 100;
    int left = 0, width = 0;  // worked out by hand
    int top = 0, height = 0;  // the same for the other direction
};

constexpr Row Rows[] = {
    {true, false, false, 105, 30, 40, 30, 40},  {true, false, true, 105, 30, 42, 30, 42},
    {true, false, true, 107, 30, 44, 30, 44},   {true, false, true, 94, 30, 37, 30, 37},
    {false, true, false, 105, 75, 40, 75, 40},  {false, true, true, 105, 73, 42, 73, 42},
    {false, true, true, 107, 74, 44, 73, 44},   {false, true, true, 95, 68, 38, 67, 38},
    {false, false, true, 105, 32, 42, 32, 42},  {false, false, true, 107, 32, 43, 32, 43},
    {true, true, false, 105, 30, 45, 30, 45},   {true, true, true, 94, 30, 34, 30, 34},
    {false, false, false, 105, 32, 40, 32, 40}, {false, false, false, 107, 34, 40, 34, 40},
    {false, false, false, 94, 27, 40, 27, 40},  {false, false, false, 95, 28, 40, 28, 40},
};

dbLayoutElement ElementOf(const Row& row) {
    dbLayoutElement e;
    e.LeftX = e.TopY = 30;
    e.WidthX = e.HeightY = 40;
    e.LockLeft = e.LockTop = row.near;
    e.LockRight = e.LockBottom = row.far;
    e.StretchWidth = e.StretchHeight = row.stretch;
    return e;
}

std::string Name(const Row& row) {
    return std::string(row.near ? "L" : "-") + (row.far ? "R" : "-") + (row.stretch ? "S" : "-") + " " +
           std::to_string(row.window);
}

TEST(Placement, EveryRowInBothDirections) {
    for (const Row& row : Rows) {
        const Rect at = GetElementRect(ElementOf(row), {row.window, row.window, 100, 100});
        EXPECT_EQ(at, (Rect{row.left, row.top, row.width, row.height})) << Name(row);
    }
}

TEST(Placement, DirectionsAreIndependent) {
    dbLayoutElement e = ElementOf({.near = true});
    e.LockTop = false;
    e.LockBottom = true;
    EXPECT_EQ(GetElementRect(e, {150, 130, 100, 100}), (Rect{30, 100, 40, 40}));
}

TEST(Placement, BoundsAreWrittenBackAtEvenDifferences) {
    for (const Row& row : Rows) {
        for (const int window : {100, 104, 120, 96, 80}) {
            const Frame frame = {window, window, 100, 100};
            const dbLayoutElement before = ElementOf(row);
            dbLayoutElement after = before;
            WriteElementBounds(after, GetElementRect(before, frame), frame);
            // A scaled element may settle a pixel away.
            const int slack = !row.near && !row.far && row.stretch ? 1 : 0;
            for (const auto field : {&dbLayoutElement::LeftX, &dbLayoutElement::WidthX,
                                     &dbLayoutElement::TopY, &dbLayoutElement::HeightY})
                EXPECT_NEAR(after.*field, before.*field, slack) << Name(row) << " at " << window;
        }
    }
}

TEST(Placement, BoundsAtOddDifferencesGoToTheEvenNeighbour) {
    struct {
        bool near, far, stretch;
        int left, width;  // of bounds 30, 40 in a window of 101, skin 100
    } const rows[] = {
        {true, false, true, 30, 40},    // 40 - 0.5 -> 40
        {false, true, true, 70, 40},    // 71 - 0.5 -> 70
        {false, false, false, 30, 40},  // 30 - 0.5 -> 30
        {true, true, false, 30, 39},
    };
    for (const auto& row : rows) {
        dbLayoutElement e = ElementOf({row.near, row.far, row.stretch, 0, 0, 0, 0, 0});
        WriteElementBounds(e, {30, 30, 40, 40}, {101, 101, 100, 100});
        EXPECT_EQ((Rect{e.LeftX, e.TopY, e.WidthX, e.HeightY}),
                  (Rect{row.left, row.left, row.width, row.width}));
    }
}

TEST(Placement, Corners) {
    struct {
        int align, distance, window, plain, region;
    } const rows[] = {
        {AlignStart, 10, 121, 10, 10},   {AlignMiddle, 10, 121, 20, 20}, {AlignMiddle, 11, 121, 22, 22},
        {AlignEnd, 10, 121, 111, 112},   {AlignEnd, 1, 90, 89, 90},      {AlignStretch, 50, 121, 60, 60},
        {AlignStretch, 50, 123, 62, 62}, {AlignStart, -5, 90, -5, -5},
    };
    for (const auto& row : rows) {
        const dbPoint point = {row.distance, row.distance, row.align, row.align, 1};
        const Frame frame = {row.window, row.window, 100, 100};
        EXPECT_EQ(GetPointPosition(point, frame, false), (Point{row.plain, row.plain})) << row.align;
        EXPECT_EQ(GetPointPosition(point, frame, true), (Point{row.region, row.region})) << row.align;
    }
}

TEST(Placement, WhatHasNoNumberIsAFailure) {
    dbLayoutElement stretched = ElementOf({.stretch = true});
    EXPECT_THROW(GetElementRect(stretched, {100, 100, 0, 0}), Failure);
    EXPECT_THROW(WriteElementBounds(stretched, {1, 1, 1, 1}, {0, 0, 100, 100}), Failure);
    EXPECT_EQ(stretched.LeftX, 30);
    dbLayoutElement far = ElementOf({.near = true, .far = true});
    far.WidthX = 2'147'483'647;
    EXPECT_THROW(GetElementRect(far, {101, 101, 100, 100}), Failure);
}

struct Corner {
    int align, window, at, expected;  // in a skin of 100
};

constexpr Corner Corners[] = {
    {AlignStart, 105, 30, 30}, {AlignMiddle, 105, 30, 28}, {AlignMiddle, 107, 30, 26},
    {AlignMiddle, 95, 30, 32}, {AlignEnd, 105, 30, 75},    {AlignStretch, 150, 30, 20},
    {AlignStretch, 40, 9, 22}, {AlignEnd, 105, -2, 107},
};

TEST(PointPlaces, APlaceIsWrittenByEachAlignmentInBothDirections) {
    for (const Corner& row : Corners) {
        dbPoint across, down;
        across.HAlign = down.VAlign = row.align;
        SetPointPosition(across, row.at, 7, {row.window, 300, 100, 200});
        SetPointPosition(down, 7, row.at, {300, row.window, 200, 100});
        EXPECT_EQ(across.X, row.expected) << row.align << " in " << row.window;
        EXPECT_EQ(across.Y, 7);
        EXPECT_EQ(down.Y, row.expected) << row.align << " in " << row.window;
    }
}

TEST(PointPlaces, ThereAndBackDiffersByAPixelAtMost) {
    for (const int align : {AlignStart, AlignMiddle, AlignEnd, AlignStretch})
        for (int window = 93; window <= 211; ++window)
            for (int at = -3; at <= window; at += 7) {
                dbPoint point;
                point.HAlign = point.VAlign = align;
                const Frame frame = {window, window + 1, 100, 99};
                SetPointPosition(point, at, at, frame);
                const Point back = GetPointPosition(point, frame, false);
                const int most = align == AlignStart || align == AlignEnd ? 0 : 1;
                EXPECT_LE(std::abs(back.x - at), most) << align << " in " << window << " at " << at;
                EXPECT_LE(std::abs(back.y - at), most) << align << " in " << window << " at " << at;
            }
}

TEST(PointPlaces, AFailureLeavesThePointAsItWas) {
    dbPoint point;
    point.X = 5, point.Y = 6, point.VAlign = AlignStretch;
    EXPECT_THROW(SetPointPosition(point, 40, 40, {100, 0, 100, 100}), Failure);
    EXPECT_EQ(point.X, 5);
    point.VAlign = 9;
    SetPointPosition(point, 40, 40, {100, 100, 100, 100});
    EXPECT_EQ(point.X, 40);
    EXPECT_EQ(point.Y, 6) << "an alignment that is none keeps its number";
}

}  // namespace
}  // namespace ornavo
