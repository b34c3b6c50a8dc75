// SPDX-License-Identifier: MIT
#include "render/compose.h"

#include "document/codes.h"
#include "support/scripted_prompts.h"
#include "support/skin_fixture.h"
#include "support/step_layer.h"

namespace ornavo::testing {
namespace {

class ComposeTest : public SkinTest {
protected:
    ScriptedPrompts prompts_;
    Target target_{100, 100};
    LayoutHost& host_ = target_.host();
    /// Without the sample on the panel, so that its ground shows.
    void ComposeBare() {
        Compose(target_);
        for (QWidget* sample : host_.pMain.findChildren<QWidget*>()) sample->hide();
    }
    QColor At(int x, int y) { return target_.grab().toImage().pixelColor(x, y); }
};

TEST_F(ComposeTest, EveryTypeHasItsControlAndItsPlace) {
    Add("b", TypeButton, {1, 2, 10, 11}).Dragger = true;
    Add("p", TypePicture, {2, 2, 10, 11});
    Add("v", TypeVolume, {3, 2, 10, 11});
    Add("i", TypeInfo, {4, 2, 10, 11});
    Add("m", TypeMain, {5, 2, 10, 11});
    Add("s", TypeSearchBox, {6, 2, 10, 20});
    Add("f", TypeScrollbar, {7, 2, 10, 320});
    Add("x", 7, {0, 0, 9, 9});
    Add("y", -1, {0, 0, 9, 9});
    Compose(target_);
    const std::pair<const Control&, Rect> expected[] = {
        {host_.Element[1], {1, 2, 10, 11}},   {host_.Element[2], {2, 2, 10, 11}},
        {host_.Element[3], {3, 2, 10, 11}},   {host_.pInfo[1], {4, 2, 10, 11}},
        {host_.pMain, {5, 2, 10, 11}},        {host_.tbx_Search, {6, 2, 10, 20}},
        {host_.Scrollframe, {7, 2, 10, 320}}, {host_.ScrollBar, {7, 17, 10, 70}},
    };
    std::string tags;
    for (const auto& [control, bounds] : expected) {
        EXPECT_EQ(control.Bounds(), bounds) << control.Name;
        EXPECT_TRUE(control.isVisible()) << control.Name;
        tags += control.Tag;
    }
    EXPECT_EQ(tags, "bpvimsf");
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Item("v")->ControlIndex, 3);
    EXPECT_EQ(host_.Element.Top(), 3);
    EXPECT_EQ(target_.gridsShown, 1);
    EXPECT_EQ(host_.Element[1].cursor().shape(), Qt::ArrowCursor);
    ComposePreview(target_, objCurrentLayout, 100, 100);
    EXPECT_EQ(host_.Element[1].cursor().shape(), Qt::SizeAllCursor);
}

TEST_F(ComposeTest, TheDiskIsAskedOnceForEachPictureAndWhatIsShownIsDecoded) {
    for (const char* name : {"red.bmp", "blue.bmp", "over.bmp"}) Picture(name, Qt::red);
    for (int i = 0; i < 9; ++i) {
        dbLayoutElement& e = Add(std::to_string(i).c_str(), TypeButton, {0, 0, 10, 10});
        e.PicNormal = i % 2 == 0 ? "RED.bmp" : "blue.bmp";
        e.PicOver = "over.bmp", e.PicDown = "gone.bmp";
    }
    const StepLayer disk;
    Compose(target_);
    EXPECT_TRUE(host_.Element[1].Picture->IsDecoded());
    EXPECT_FALSE(host_.Element[1].PictureOver->IsDecoded());
    EXPECT_LE(disk.asked, 5);  // also for the folder's time
    EXPECT_EQ(disk.listed, 1);
}

TEST_F(ComposeTest, TheLastElementIsInFront) {
    Picture("red.bmp", Qt::red);
    Picture("blue.bmp", Qt::blue);
    Add("back", TypePicture, {10, 10, 20, 20}).PicNormal = "red.bmp";
    Add("panel", TypeMain, {10, 20, 20, 10}).BackgroundColor = Rgb(0, 255, 0);
    Add("front", TypePicture, {20, 10, 20, 20}).PicNormal = "blue.bmp";
    ComposeBare();
    EXPECT_EQ(At(12, 12), QColor(Qt::red));
    EXPECT_EQ(At(12, 25), QColor(Qt::green));
    EXPECT_EQ(At(22, 25), QColor(Qt::blue));
}

TEST_F(ComposeTest, NothingOfTheLayoutBeforeIsLeftAndWhatHasNoSizeUsesNoSlot) {
    Picture("red.bmp", Qt::red);
    dbLayoutElement& rich = Add("rich", TypeButton, {0, 0, 20, 20});
    rich.PicNormal = rich.PicOver = "red.bmp";
    rich.ShowBorder = rich.ShowShadow = true;
    Add("one", TypeInfo, {0, 30, 20, 20});
    Add("two", TypeInfo, {0, 60, 20, 20});
    host_.pMain.Tag = "before";
    Compose(target_);
    objCurrentLayout->dbLayoutElements = std::make_shared<dbLayoutElements>();
    Add("none", TypeButton, {0, 0, 0, 10});
    Add("bare", TypeButton, {0, 0, 20, 20}).UseTransparency = true;
    Add("one", TypeInfo, {0, 30, 20, 20});
    Add("flat", TypeMain, {70, 70, 10, 0});
    const QColor behind = At(50, 90);
    host_.pMain.Move({70, 0, 5, 5});
    Compose(target_);
    for (int x = 0; x < 20; x += 3) EXPECT_EQ(At(x, x), behind) << x;
    EXPECT_TRUE(host_.Element[1].Tag == "bare" && host_.Element[1].Elements.Count() == 1);
    EXPECT_FALSE(host_.Element[1].State.UseShadow || host_.Element[1].PictureOver);
    EXPECT_EQ(host_.pInfo[2].Tag + host_.pMain.Tag, "");
    EXPECT_TRUE(host_.pMain.isVisible() && !host_.pInfo[2].isVisible());
}

TEST_F(ComposeTest, VisibleIsObeyedButByThePanelAndTheSwitchOnTheCanvas) {
    for (const auto& [key, type] : {std::pair{"b", 1}, {"i", 4}, {"m", 0}, {"s", 5}, {"f", 6}})
        Add(key, type, {0, 0, 10, 10}).Visible = false;
    Compose(target_);
    EXPECT_TRUE(host_.pMain.isVisible());
    for (const Control* hidden : std::initializer_list<const Control*>{
             &host_.Element[1], &host_.pInfo[1], &host_.tbx_Search, &host_.Scrollframe, &host_.ScrollBar})
        EXPECT_FALSE(hidden->isVisible()) << hidden->Name;
    viewSwitches.ShowElements = false;
    Compose(target_);
    EXPECT_FALSE(host_.pMain.isVisible());
    ComposePreview(target_, objCurrentLayout, 100, 100);
    EXPECT_TRUE(host_.pMain.isVisible()) << "the switch is for the canvas alone";
}

TEST_F(ComposeTest, WhatTheCompositionWritesToTheModel) {
    Picture("keyed.bmp", QColor(1, 2, 3));
    dbLayoutElement& topLeft = Add("top left", TypePicture, {0, 0, 10, 10});
    topLeft.PicNormal = "keyed.bmp";
    topLeft.UseTransparency = topLeft.UseTopLeftTransparency = true;
    dbLayoutElement& without = Add("without", TypePicture, {0, 0, 10, 10});
    without.UseTopLeftTransparency = true;
    without.TransparentColor = 88;
    dbLayoutElement& info = Add("info", TypeInfo, {0, 0, 10, 10});
    info.CapScrollSpeed = -3;
    info.InfoType = 2;
    info.Value = 2.5;
    Compose(target_);
    EXPECT_EQ(topLeft.TransparentColor, Rgb(1, 2, 3));
    EXPECT_EQ(without.TransparentColor, 88);
    EXPECT_EQ(info.CapScrollSpeed, 3);
    EXPECT_TRUE(info.Font && *info.Font == (Font{"2.5", 10}));
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(ComposeTest, FailuresAreToldOnceForALayout) {
    objSkin->SkinWidth = objSkin->SkinHeight = 0;
    for (const char* key : {"a", "b", "c"}) {
        dbLayoutElement& scaled = Add(key, TypeButton, {0, 0, 10, 10});
        scaled.LockLeft = false;
        scaled.StretchWidth = true;
    }
    Add("good", TypeButton, {5, 5, 10, 10});
    Compose(target_);
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0].find('\n'), std::string::npos);
    EXPECT_EQ(host_.Element[1].Tag, "good");
    Compose(target_);
    EXPECT_EQ(prompts_.asked.size(), 1u);
    objCurrentLayout = std::make_shared<dbLayout>(*objCurrentLayout);
    Compose(target_);
    EXPECT_EQ(prompts_.asked.size(), 2u) << "of another layout again";
}

TEST_F(ComposeTest, ThePanelIsTiledOrStretched) {
    QImage half(2, 1, QImage::Format_RGB32);
    half.setPixelColor(0, 0, Qt::red);
    half.setPixelColor(1, 0, Qt::blue);
    ASSERT_TRUE(half.save(Path("half.bmp")));
    dbLayoutElement& panel = Add("m", TypeMain, {0, 0, 40, 40});
    panel.PicNormal = "half.bmp";
    ComposeBare();
    EXPECT_EQ(At(0, 39), QColor(Qt::red));
    EXPECT_EQ(At(1, 39), QColor(Qt::blue));
    panel.StretchBackground = true;
    ComposeBare();
    EXPECT_EQ(At(1, 39), QColor(Qt::red));
    EXPECT_EQ(At(38, 0), QColor(Qt::blue));
    panel.PicNormal = "gone.bmp";
    panel.BackgroundColor = Rgb(0, 255, 0);
    ComposeBare();
    EXPECT_EQ(At(20, 20), QColor(Qt::green));
}

TEST_F(ComposeTest, TheBarHasItsOwnPictureOverTheFrameAndPicturesAreFoundAsTheyLieOnTheDisk) {
    Picture("Frame.BMP", Qt::red);
    Picture("bar.bmp", Qt::blue);
    dbLayoutElement& frame = Add("f", TypeScrollbar, {10, 0, 20, 90});
    frame.PicNormal = "frame.bmp";
    frame.PicOn = "c:\\somewhere\\BAR.bmp";
    Compose(target_);
    for (const auto& [y, colour] : {std::pair{14, Qt::red}, {15, Qt::blue}, {64, Qt::blue}, {65, Qt::red}})
        EXPECT_EQ(At(20, y), QColor(colour)) << y;
}

}  // namespace
}  // namespace ornavo::testing
