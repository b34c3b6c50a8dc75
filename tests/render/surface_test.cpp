// SPDX-License-Identifier: MIT
#include "render/surface.h"

#include "document/codes.h"
#include "render/shape.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {
namespace {

const QColor Dots(110, 100, 100), Lines(55, 50, 50), Ground(0x80, 0x80, 0x80);

class SurfaceTest : public SkinTest {
protected:
    SurfaceTest() { viewSwitches.ShowShape = false; }
    QImage Shown(int width = 101, int height = 61) {
        surface_.ShowGrid({width, height, 100, 100}, 1);
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        surface_.Paint(painter, image.rect());
        return image;
    }
    static void SetPoints(const std::vector<Point>& corners) {
        objCurrentLayout->dbPoints = std::make_shared<dbPoints>();
        for (const Point& corner : corners) {
            dbPoint& point = *objCurrentLayout->dbPoints->Add(objCurrentLayout->dbPoints->Count() + 1);
            point.X = corner.x, point.Y = corner.y;
        }
    }
    void SetBackground(const char* name) { objSkin->dbSkinPrefs->Item("SP_BackgroundPicture")->value = name; }
    Surface surface_;
};

TEST_F(SurfaceTest, GridDotsAndGuideLinesWhichSmallSpacingsLeaveAlone) {
    viewSwitches.GridX = 4;
    viewSwitches.GridY = 6;
    const QImage image = Shown();
    EXPECT_FALSE(surface_.ShowGrid({101, 61, 100, 100}, 1)) << "nothing to draw again";
    // Lines every five spacings, dots at each, also on the lines; the guide lines, 61/2 goes to 30; the rest.
    for (const QPoint at : {QPoint(0, 1), QPoint(20, 7), QPoint(7, 0)})
        EXPECT_EQ(image.pixelColor(at), Lines);
    for (const QPoint at : {QPoint(4, 6), QPoint(20, 6), QPoint(3, 30), QPoint(50, 3)})
        EXPECT_EQ(image.pixelColor(at), Dots);
    for (const QPoint at : {QPoint(4, 7), QPoint(21, 31)}) EXPECT_EQ(image.pixelColor(at), Ground);
    viewSwitches.GridX = viewSwitches.GridY = 2;
    EXPECT_EQ(Shown().pixelColor(0, 0), Ground);
    EXPECT_EQ(Shown().pixelColor(50, 7), Dots);
    viewSwitches.GridX = -7;  // settings may hold anything
    viewSwitches.GridY = 3;
    EXPECT_EQ(Shown().pixelColor(1, 3), Dots);
    EXPECT_EQ(Shown().pixelColor(3, 15), Dots);
    viewSwitches.ShowGrid = false;
    EXPECT_EQ(Shown().pixelColor(50, 7), Ground);
}

TEST_F(SurfaceTest, ABackgroundThatIsGoneLeavesEverythingAsItWas) {
    Picture("back.bmp", Qt::blue, 10, 10);
    viewSwitches.ShowGrid = false;
    SetBackground("back.bmp");
    EXPECT_EQ(Shown().pixelColor(9, 9), QColor(Qt::blue));
    EXPECT_EQ(Shown().pixelColor(10, 9), Ground);
    SetBackground("gone.bmp");
    viewSwitches.ShowGrid = true;
    EXPECT_EQ(Shown().pixelColor(9, 9), QColor(Qt::blue));
    SetBackground("");
    EXPECT_EQ(Shown().pixelColor(9, 9), Ground);
}

TEST_F(SurfaceTest, TheOverlayDimsOneSide) {
    SetPoints({{20, 20}, {20, 60}, {60, 60}, {60, 20}});
    Picture("back.bmp", Qt::white, 101, 101);
    SetBackground("back.bmp");
    viewSwitches.ShowGrid = false;
    viewSwitches.ShowShape = true;
    for (const bool inverted : {false, true}) {
        viewSwitches.ShapeInverted = inverted;
        const QImage image = Shown(101, 101);
        const int inside = image.pixelColor(40, 40).value(), outside = image.pixelColor(5, 90).value();
        EXPECT_EQ(inverted ? inside : outside, 255);
        EXPECT_NEAR(inverted ? outside : inside, 150, 50) << "it dims, it doesn't hide";
        EXPECT_LT(image.pixelColor(19, 40).value(), 120) << "the line";
    }
}

TEST_F(SurfaceTest, CornersFarAwayCostNothingAndChangeNothingInTheWindow) {
    constexpr int most = 3'000'000;
    const std::pair<std::vector<Point>, QRegion> rows[] = {
        {{{-most, 40}, {most, 40}, {most, -most}, {-most, -most}}, QRegion(0, 0, 100, 40)},
        {{{0, 0}, {most, 0}, {0, most}}, QRegion(0, 0, 100, 80)},
        {{{10, -300}, {30, -300}, {30, 300}, {10, 300}}, QRegion(10, 0, 20, 80)}};
    for (const auto& [corners, seen] : rows) {
        SetPoints(corners);
        const QRegion region = ShapeRegion(*objCurrentLayout, {100, 80, 100, 80});
        EXPECT_LT(region.boundingRect().height(), 10'000);
        EXPECT_EQ(region.intersected(QRect(0, 0, 100, 80)), seen) << corners[0].x;
    }
}

}  // namespace
}  // namespace ornavo::testing
