// SPDX-License-Identifier: MIT
#include "canvas/shape_gestures.h"
#include "canvas/shape_points.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

/// The shape is a rectangle in the middle, its sides shown.
class ShapeTest : public EditingTest {
protected:
    ShapeTest() {
        for (const Point at : {Point{200, 150}, {200, 450}, {600, 450}, {600, 150}}) AddPoint(at);
        viewSwitches.ShowLines = true;
        Compose();
    }
    static dbPoint& PointOf(int order) { return *objCurrentLayout->dbPoints->GetFromOrder(order); }
    ShapePoints& Points() { return form_->parts().points; }
    static std::string Text(std::initializer_list<int> numbers) {
        std::string text;
        for (const int number : numbers) text += (text.empty() ? "" : ",") + std::to_string(number);
        return text;
    }
    /// Tag and ends of each visible side.
    std::string Sides() {
        std::string text;
        for (int i = 1; i <= Points().cPoint.Top(); ++i)
            if (const dbLine& side = Points().cPoint[i]; side.isVisible())
                text += side.Tag + ":" + Text({side.X1(), side.Y1(), side.X2(), side.Y2()}) + " ";
        return text;
    }
    /// Tag and middle of each visible corner.
    std::string Corners() {
        std::string text;
        for (int i = 1; i <= Points().cPointMover.Top(); ++i)
            if (const PictureBox& corner = Points().cPointMover[i]; corner.isVisible())
                text += corner.Tag + ":" + Text({corner.Bounds().left + 2, corner.Bounds().top + 2}) + " ";
        return text;
    }
    static std::string Orders() {
        std::string text;
        for (const dbPointRef& point : *objCurrentLayout->dbPoints)
            text += Text({point->Order, point->X, point->Y}) + " ";
        return text;
    }
};

TEST_F(ShapeTest, SidesAndCornersAreShownAsTheSwitchesSayAndOddOrdersAreSkipped) {
    EXPECT_EQ(Sides(), "1:200,150,200,450 2:200,450,600,450 3:600,450,600,150 4:600,150,200,150 ");
    EXPECT_EQ(Corners(), "K1:200,150 K2:200,450 K3:600,450 K4:600,150 ");
    viewSwitches.ShowLines = viewSwitches.ShowPoints = false;
    Compose();
    EXPECT_EQ(Sides() + Corners(), "");
    viewSwitches.ShowLines = viewSwitches.ShowPoints = true;
    PointOf(2).Order = 1;
    PointOf(4).Order = 2'000'000'000;
    Compose();
    EXPECT_EQ(Sides(), "1:200,150,600,450 3:600,450,200,150 ");
    EXPECT_EQ(Corners(), "K1:200,150 K3:600,450 ");
}

TEST_F(ShapeTest, AClickedSideGetsACornerThoughItIsNotSeen) {
    Click(200, 300);
    EXPECT_EQ(Orders(), "1,200,150 2,200,300 3,200,450 4,600,450 5,600,150 ");
    EXPECT_TRUE(objSkin->Dirty);
    viewSwitches.ShowLines = false;
    Compose();
    for (const auto& [x, y, side] : {std::tuple{203, 370, 2}, {204, 370, 0}, {400, 153, 5}})
        EXPECT_EQ(LineUnderPointer(x, y), side) << x;
    Click(400, 153);
    EXPECT_EQ(Orders(), "1,200,150 2,200,300 3,200,450 4,600,450 5,600,150 6,400,153 ");
}

TEST_F(ShapeTest, ADraggedCornerTakesItsPointAndBothSidesAlong) {
    Press(200, 150);
    EXPECT_EQ(SelKey(), "K1");
    EXPECT_EQ(SelControl()->BackColor(), PointBlinkColor);
    EXPECT_FALSE(objSkin->Dirty) << "a press moves nothing";
    MoveTo(190, 170);
    EXPECT_EQ(Sides(), "1:190,170,200,450 2:200,450,600,450 3:600,450,600,150 4:600,150,190,170 ");
    EXPECT_TRUE(objSkin->Dirty);
    MoveTo(-60, 170);
    EXPECT_EQ(PointOf(1).X, 0);
    EXPECT_EQ(Points().cPointMover[1].Bounds().left, -2);
    Release(-60, 170);
    EXPECT_TRUE(windows_.panel.shown && !form_->parts().drag.MouseIsDown());
}

TEST_F(ShapeTest, TheSelectionStaysWithItsCornerWhenAnotherIsInserted) {
    Click(200, 450);
    ASSERT_EQ(SelKey(), "K2");
    Click(200, 300);
    EXPECT_EQ(SelKey(), "K3");
    EXPECT_EQ(windows_.panel.sheets, 1) << "which shows its number";
    ASSERT_TRUE(SelControl());
    EXPECT_EQ(SelControl()->Bounds(), (Rect{198, 448, 5, 5}));
}

TEST_F(ShapeTest, WhatLiesUnderADiagonalStaysClickable) {
    Add("Button1", TypeButton, {300, 160, 200, 200});
    PointOf(2).X = PointOf(3).X = 600;  // the first side runs from 200, 150 to 600, 450
    Compose();
    Click(480, 200);
    EXPECT_EQ(SelKey(), "Button1");
    Click(403, 299);
    EXPECT_EQ(Orders(), "1,200,150 2,403,299 3,600,450 4,600,450 5,600,150 ");
}

}  // namespace
}  // namespace ornavo::testing
