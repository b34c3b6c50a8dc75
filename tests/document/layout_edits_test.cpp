// SPDX-License-Identifier: MIT
#include "document/layout_edits.h"

#include <gtest/gtest.h>

#include "document/codes.h"
#include "support/failure_number.h"

namespace ornavo {
namespace {

TEST(LayoutEdits, NumbersFillTheLowestGapAndOrdersStayDense) {
    dbLayout layout;
    const auto add = [&](int type) { return AddNumberedElement(layout, GetTopOrder(layout), type)->Key; };
    std::string keys;
    for (const int type : {TypeButton, TypePicture, TypeVolume, TypeInfo, TypeButton})
        keys += add(type) + " ";
    DeleteElement(layout, "button1");
    for (const int type : {TypeButton, TypeButton}) keys += add(type) + " ";
    EXPECT_EQ(keys, "Button1 Graphic1 Volume1 Info1 Button2 Button1 Button3 ");
    for (const int type : {-1, int(TypeMain), int(TypeSearchBox), 99})
        EXPECT_EQ(AddNumberedElement(layout, 1, type), nullptr);
    for (const auto edit : {DeleteElement, BringElementToFront, SendElementToBack})
        EXPECT_EQ(FailureNumber([&] { edit(layout, "Nobody"); }), 9);
    BringElementToFront(layout, "info1");
    SendElementToBack(layout, "Button3");
    layout.dbLayoutElements->Item("Volume1")->ControlIndex = 7;
    EXPECT_EQ(GetControlIndex(layout, 3), 7);
    EXPECT_EQ(GetControlIndex(layout, 9), 0);
    std::string stack;
    for (const dbLayoutElementRef& e : *layout.dbLayoutElements)
        stack += e->Key + "=" + std::to_string(e->Order) + " ";
    EXPECT_EQ(stack, "Button3=1 Graphic1=2 Volume1=3 Button2=4 Button1=5 Info1=6 ");
}

}  // namespace
}  // namespace ornavo
