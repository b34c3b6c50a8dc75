// SPDX-License-Identifier: MIT
#include "render/surface.h"

#include <QPainter>
#include <limits>

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
    static dbPoint& AddPoint(int order, const Point& at) {
        dbPoint& point = *objCurrentLayout->dbPoints->Add(order);
        point.X = at.x, point.Y = at.y;
        return point;
    }
    void SetBackground(const char* name) { objSkin->dbSkinPrefs->Item("SP_BackgroundPicture")->value = name; }
    Surface surface_;
};

TEST_F(SurfaceTest, GridDotsAndGuideLines) {
    viewSwitches.GridX = 4;
    viewSwitches.GridY = 6;
    const QImage image = Shown();
    // Lines every five spacings, dots at each, also on the lines; the guide lines, 61/2 goes to 30; the rest.
    for (const QPoint at : {QPoint(0, 1), QPoint(20, 7), QPoint(7, 0)})
        EXPECT_EQ(image.pixelColor(at), Lines);
    for (const QPoint at : {QPoint(4, 6), QPoint(20, 6), QPoint(3, 30), QPoint(50, 3)})
        EXPECT_EQ(image.pixelColor(at), Dots);
    for (const QPoint at : {QPoint(4, 7), QPoint(21, 31)}) EXPECT_EQ(image.pixelColor(at), Ground);
}

TEST_F(SurfaceTest, SmallSpacingsLeaveTheGuideLinesAlone) {
    viewSwitches.GridX = viewSwitches.GridY = 2;
    EXPECT_EQ(Shown().pixelColor(0, 0), Ground);
    EXPECT_EQ(Shown().pixelColor(50, 7), Dots);
    viewSwitches.GridY = 3;
    EXPECT_EQ(Shown().pixelColor(2, 3), Dots);
    EXPECT_EQ(Shown().pixelColor(10, 4), Lines);
    EXPECT_EQ(Shown().pixelColor(3, 15), Lines);
    viewSwitches.GridX = -7;  // settings may hold anything
    EXPECT_EQ(Shown().pixelColor(1, 3), Dots);
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
    EXPECT_EQ(Shown().pixelColor(50, 20), Ground);
    SetBackground("");
    EXPECT_EQ(Shown().pixelColor(9, 9), Ground);
    SetBackground("back.bmp");
    viewSwitches.ShowShape = true;
    AddPoint(1, {std::numeric_limits<std::int32_t>::max(), 0}).HAlign = AlignStretch;
    EXPECT_EQ(Shown().pixelColor(9, 9), QColor(Qt::blue)) << "nor does a shape without a place";
}

TEST_F(SurfaceTest, TheOverlayDimsOneSideAndItsLineShowsOnBlackAndOnWhite) {
    for (const auto& [order, at] : {std::pair{1, Point{20, 20}}, {2, {20, 60}}, {3, {60, 60}}, {4, {60, 20}}})
        AddPoint(order, at);
    viewSwitches.ShowGrid = false;
    viewSwitches.ShowShape = true;
    for (const bool inverted : {false, true}) {
        viewSwitches.ShapeInverted = inverted;
        for (const QColor ground : {QColor(Qt::black), QColor(Qt::white)}) {
            Picture("back.bmp", ground, 101, 101);
            SetBackground("back.bmp");
            const QImage image = Shown(101, 101);
            const QColor inside = image.pixelColor(40, 40), outside = image.pixelColor(5, 90);
            EXPECT_EQ(inverted ? inside : outside, ground);
            if (ground == Qt::white) {
                EXPECT_LT((inverted ? outside : inside).value(), 200);
                EXPECT_GT((inverted ? outside : inside).value(), 100) << "it dims, it doesn't hide";
            }
            int darkest = 255, lightest = 0;
            for (int x = 15; x < 25; ++x) {
                darkest = std::min(darkest, image.pixelColor(x, 40).value());
                lightest = std::max(lightest, image.pixelColor(x, 40).value());
            }
            EXPECT_GT(lightest - darkest, 120) << ground.name().toStdString();
        }
    }
}

TEST_F(SurfaceTest, CornersFarAwayCostNothingAndChangeNothingInTheWindow) {
    constexpr int most = 3'000'000;
    const std::pair<std::vector<Point>, QRegion> rows[] = {
        {{{-most, 40}, {most, 40}, {most, -most}, {-most, -most}}, QRegion(0, 0, 100, 40)},
        {{{0, 0}, {most, 0}, {0, most}}, QRegion(0, 0, 100, 80)},
        {{{-most, -most},
          {most, -most},
          {most, most},
          {-most, most},
          {-most, -most},
          {20, 20},
          {70, 20},
          {70, 60},
          {20, 60},
          {20, 20}},
         QRegion(0, 0, 100, 80).subtracted(QRegion(20, 20, 50, 40))},  // a hole, wound as its frame is
        {{{10, -300}, {30, -300}, {30, 300}, {10, 300}}, QRegion(10, 0, 20, 80)}};
    for (const auto& [corners, seen] : rows) {
        objCurrentLayout->dbPoints = std::make_shared<dbPoints>();
        for (const Point& corner : corners) AddPoint(objCurrentLayout->dbPoints->Count() + 1, corner);
        const QRegion region = ShapeRegion(*objCurrentLayout, {100, 80, 100, 80});
        EXPECT_LT(region.boundingRect().height(), 10'000);
        EXPECT_EQ(region.intersected(QRect(0, 0, 100, 80)), seen) << corners[0].x;
    }
}

}  // namespace
}  // namespace ornavo::testing
