// SPDX-License-Identifier: MIT
#include "canvas/picture_items.h"

#include "canvas/element_menu.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class PictureItemsTest : public EditingTest {
protected:
    /// A plain red button with a green one over its left half; the green one selected.
    dbLayoutElement& AddGreenOverRed() {
        Picture("red.bmp", Qt::red, 80, 60);
        Picture("green.bmp", Qt::green, 30, 20);
        Add("Button1", TypeButton, {100, 100, 80, 60}).PicNormal = "red.bmp";
        dbLayoutElement& green = Add("Button2", TypeButton, {90, 110, 40, 40});
        green.PicNormal = "green.bmp";
        green.ElementName = "Play: a/b*";
        Compose();
        Click(95, 120);
        return green;
    }
};

bool IsNear(QColor one, QColor two) {
    return std::abs(one.red() - two.red()) < 12 && std::abs(one.green() - two.green()) < 12 &&
           std::abs(one.blue() - two.blue()) < 12;
}

TEST_F(PictureItemsTest, TheBackgroundBecomesThePictureWithoutTheElementAndTheTools) {
    dbLayoutElement& green = AddGreenOverRed();
    for (const Point at : {Point{105, 120}, {120, 130}, {135, 140}}) AddPoint(at);
    viewSwitches.ShowLines = true;
    viewSwitches.ShowShape = viewSwitches.ShowGrid = false;
    Compose();
    form_->SelectWithAnchors(host().Element[1]);  // its handles lie within the other
    form_->SelectWithAnchors(host().Element[2]);
    const QColor ground = form_->grab({95, 90, 1, 1}).toImage().pixelColor(0, 0);
    mnuElementSub_Click(form_->parts(), MenuBackgroundPicture);
    EXPECT_EQ(green.PicNormal, "Play; a_b._up.jpg");
    const QImage made(Path(green.PicNormal.c_str()));
    ASSERT_EQ(made.size(), QSize(40, 40));
    for (int y = 0; y < 40; y += 3)
        for (const int x : {4, 14, 20, 30, 39})
            EXPECT_TRUE(IsNear(made.pixelColor(x, y), x < 10 ? ground : Qt::red)) << x << ", " << y;
    EXPECT_TRUE(host().Element[2].isVisible() && anchors().Anchor[7]->isVisible());
}

TEST_F(PictureItemsTest, BeyondTheCanvasThePictureIsBlackAndANewSkinHasItsFolderThen) {
    dbLayoutElement& green = AddGreenOverRed();
    green.LeftX = -20;
    Compose();
    objSkin->SkinName = "New";
    mnuElementSub_Click(form_->parts(), MenuBackgroundPicture);
    const QImage made(Path("../New/") + green.PicNormal.c_str());
    ASSERT_EQ(made.size(), QSize(40, 40));
    EXPECT_TRUE(IsNear(made.pixelColor(5, 20), Qt::black));
    EXPECT_FALSE(IsNear(made.pixelColor(35, 20), Qt::black));
}

TEST_F(PictureItemsTest, TheOriginalSizeIsThePicturesOrThatOfTheLast) {
    PicRealSize = {};
    dbLayoutElement& green = AddGreenOverRed();
    mnuElementSub_Click(form_->parts(), MenuOriginalSize);
    EXPECT_EQ(Fields(green), (Rect{90, 110, 30, 20}));
    EXPECT_EQ(anchors().Mover.Bounds(), (Rect{90, 110, 30, 20}));
    green.PicNormal.clear();
    green.WidthX = 99;
    mnuElementSub_Click(form_->parts(), MenuOriginalSize);
    EXPECT_EQ(green.WidthX, 30);
}

}  // namespace
}  // namespace ornavo::testing
