// SPDX-License-Identifier: MIT
#include "document/shape_edits.h"

#include <gtest/gtest.h>

namespace ornavo {
namespace {

/// X of each point with its order, in the collection's sequence.
std::string Listed(const dbPoints& points) {
    std::string text;
    for (const dbPointRef& point : points)
        text += std::to_string(point->Order) + ":" + std::to_string(point->X) + " ";
    return text;
}

void AddPoint(dbLayout& layout, int order, int x) {
    dbPoint point;
    point.Order = order, point.X = x, point.Y = x + 1, point.VAlign = 2, point.HAlign = 3;
    layout.dbPoints->AddObject(std::make_shared<dbPoint>(point));
}

TEST(ShapeEdits, ATagAndItsOrder) {
    EXPECT_EQ(OrderOfTag(TagOfPoint(12)), 12);
    for (const char* none : {"", "K", "Kx", "K1x", "K 1", "K99999999999", "Button"})
        EXPECT_EQ(OrderOfTag(none), 0) << none;
}

TEST(ShapeEdits, ADeletedPointLeavesDenseOrdersAndNewKeys) {
    dbLayout layout;
    for (const int order : {7, 3, -2, 3000}) AddPoint(layout, order, order);
    RenumberPoints(*layout.dbPoints);
    EXPECT_EQ(Listed(*layout.dbPoints), "1:7 2:3 3:-2 4:3000 ");
    layout = dbLayout();
    for (const int order : {1, 2, 3, 4}) AddPoint(layout, order, order * 10);
    for (const char* none : {"", "K", "K0", "K5", "K-1", "Main"}) DeleteShapePoint(layout, none);
    EXPECT_EQ(layout.dbPoints->Count(), 4);
    DeleteShapePoint(layout, "K2");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:10 2:30 3:40 ");
    EXPECT_EQ(layout.dbPoints->Find("K3")->X, 40);
    EXPECT_EQ(layout.dbPoints->Find("K4"), nullptr);
    const dbPoint& moved = *layout.dbPoints->Item(2);
    EXPECT_TRUE(moved.Y == 31 && moved.VAlign == 2 && moved.HAlign == 3);
    AddPoint(layout, 0, 50);
    DeleteShapePoint(layout, "K1");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:30 2:40 ") << "what has no order goes too";
    DeleteShapePoint(layout, "K1");
    EXPECT_EQ(Listed(*layout.dbPoints), "1:30 2:40 ") << "two corners stay";
}

}  // namespace
}  // namespace ornavo
