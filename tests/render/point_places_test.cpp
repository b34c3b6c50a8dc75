// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/failure.h"
#include "document/codes.h"
#include "render/placement.h"

namespace ornavo {
namespace {

struct Row {
    int align, window, at, expected;  // in a skin of 100
};

constexpr Row Rows[] = {
    {AlignStart, 105, 30, 30},   {AlignMiddle, 104, 30, 28}, {AlignMiddle, 105, 30, 28},
    {AlignMiddle, 107, 30, 26},  {AlignMiddle, 95, 30, 32},  {AlignEnd, 105, 30, 75},
    {AlignStretch, 150, 30, 20}, {AlignStretch, 80, 30, 38}, {AlignStretch, 40, 9, 22},
    {AlignEnd, 105, -2, 107},
};

TEST(PointPlaces, APlaceIsWrittenByEachAlignmentInBothDirections) {
    for (const Row& row : Rows) {
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
