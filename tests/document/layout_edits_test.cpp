// SPDX-License-Identifier: MIT
#include "document/layout_edits.h"

#include <gtest/gtest.h>

#include "document/codes.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

/// "A1 B2": keys in the order of the collection, each with its Order.
std::string Stack(const dbLayout& layout) {
    std::string text;
    for (const dbLayoutElementRef& e : *layout.dbLayoutElements)
        text += (text.empty() ? "" : " ") + e->Key + "=" + std::to_string(e->Order);
    return text;
}

dbLayout Three() {
    dbLayout layout;
    for (const char* key : {"A", "B", "C"})
        layout.dbLayoutElements->Add(GetTopOrder(layout), key, TypeButton, 0)->ControlIndex =
            GetTopOrder(layout) * 10;
    return layout;
}

TEST(LayoutEdits, OrdersStayDenseAndInStepWithTheStack) {
    dbLayout layout = Three();
    BringElementToFront(layout, "a");
    EXPECT_EQ(Stack(layout), "B=1 C=2 A=3");
    SendElementToBack(layout, "C");
    EXPECT_EQ(Stack(layout), "C=1 B=2 A=3");
    DeleteElement(layout, "B");
    EXPECT_EQ(Stack(layout), "C=1 A=2");
    EXPECT_EQ(GetTopOrder(layout), 3);
    for (const auto edit : {DeleteElement, BringElementToFront, SendElementToBack})
        EXPECT_EQ(FailureNumber([&] { edit(layout, "B"); }), 9);
    EXPECT_EQ(Stack(layout), "C=1 A=2");
}

TEST(LayoutEdits, TheControlOfAnOrder) {
    const dbLayout layout = Three();
    EXPECT_EQ(GetControlIndex(layout, 2), 20);
    EXPECT_EQ(GetControlIndex(layout, 4), 0);
}

TEST(LayoutEdits, NumbersFillTheLowestGapOfTheirWord) {
    dbLayout layout;
    const auto add = [&](int type) { return AddNumberedElement(layout, GetTopOrder(layout), type)->Key; };
    EXPECT_EQ(add(TypeButton), "Button1");
    EXPECT_EQ(add(TypePicture), "Graphic1");
    EXPECT_EQ(add(TypeVolume), "Volume1");
    EXPECT_EQ(add(TypeInfo), "Info1");
    EXPECT_EQ(add(TypeButton), "Button2");
    DeleteElement(layout, "Button1");
    EXPECT_EQ(add(TypeButton), "Button1");
    EXPECT_EQ(add(TypeButton), "Button3");
    for (const int type : {-1, int(TypeMain), int(TypeSearchBox), 99})
        EXPECT_EQ(AddNumberedElement(layout, 1, type), nullptr);
    EXPECT_EQ(layout.dbLayoutElements->Count(), 6);
}

}  // namespace
}  // namespace ornavo
