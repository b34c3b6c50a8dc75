// SPDX-License-Identifier: MIT
#include "canvas/frm_ornavo.h"

#include "document/codes.h"
#include "editor/settings_keys.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class CanvasTest : public SkinTest {
protected:
    ScriptedPrompts prompts_;
    RecordedWindows windows_;
};

TEST_F(CanvasTest, AFirstRunHasItsDesignedPlace) {
    frm_Ornavo form(windows_, "0.1");
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 12120, 9435}));
    EXPECT_EQ(form.size(), QSize(800, 600));
    EXPECT_EQ(form.WindowState(), StateNormal);
    EXPECT_TRUE(viewSwitches.ShowGrid && viewSwitches.ShowPoints && viewSwitches.ShapeInverted);
    EXPECT_FALSE(viewSwitches.SnapGrid || viewSwitches.ShowLines);
    EXPECT_EQ(viewSwitches.GridX, 10);
}

TEST_F(CanvasTest, SettingsComeBackAndNonsenseKeepsTheDesignedState) {
    SaveSetting("Ornavo", "GridX", "7");
    SaveSetting("Ornavo", "GridY", "many");
    SaveSetting("Ornavo", "SnapGrid", "True");
    SaveSetting("Ornavo", "ShowGrid", "perhaps");
    SaveSetting("Ornavo", "Left", "nowhere");
    SaveSetting("Ornavo", "Top", "300");
    viewSwitches.GridY = 10;
    frm_Ornavo form(windows_, "0.1");
    EXPECT_EQ(viewSwitches.GridX, 7);
    EXPECT_EQ(viewSwitches.GridY, 10);
    EXPECT_TRUE(viewSwitches.SnapGrid);
    EXPECT_TRUE(viewSwitches.ShowGrid);
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 300, 12120, 9435}));
}

TEST_F(CanvasTest, TheEndSavesPlaceAndSwitches) {
    for (const int state : {StateNormal, StateMaximised, StateMinimised}) {
        frm_Ornavo form(windows_, "0.1");
        form.MoveTwips({1500, 1200, 12000, 9600});
        form.Start("");
        QCoreApplication::processEvents();
        form.SetWindowState(state);
        viewSwitches.GridX = 20 + state;
        viewSwitches.ShowLines = true;
        form.close();
        EXPECT_EQ(settings::OrnavoWindowState.Read(), state == StateMaximised ? StateMaximised : StateNormal);
        EXPECT_EQ(settings::OrnavoLeft.Read(), 1500);
        EXPECT_EQ(settings::OrnavoTop.Read(), 1200);
        EXPECT_EQ(settings::OrnavoWidth.Read(), 12000);
        EXPECT_EQ(settings::OrnavoHeight.Read(), 9600);
        EXPECT_EQ(settings::GridX.Read(), 20 + state);
        EXPECT_TRUE(settings::ShowLines.Read());
        EXPECT_FALSE(form.tmrSelector.isActive());
        SaveSetting("Ornavo", "WindowState", "0");
    }
    EXPECT_EQ(windows_.unloaded, 3);
}

TEST_F(CanvasTest, ASkinThatCannotBeOpenedIsTold) {
    windows_.failure = "no such disk";
    frm_Ornavo form(windows_, "0.1");
    form.Start("Blue Moon");
    EXPECT_EQ(windows_.opened, "Blue Moon");
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0], "Loading Skin Error: no such disk");
}

TEST_F(CanvasTest, TheCaption) {
    frm_Ornavo form(windows_, "0.1");
    form.Start("");
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo -> Blue -> Standard -> Current Size: 800x600");
    objSkin->Dirty = true;
    objSkin->SkinName = "AC%2FDC";
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo -> AC%2FDC -> Standard* -> Current Size: 800x600");
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = std::make_shared<dbLayout>();
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo 0.1 (BETA)");
}

TEST_F(CanvasTest, ARunOfResizesIsOneRebuildAfterTheLast) {
    dbLayoutElement& e = Add("wide", TypeButton, {10, 10, 50, 20});
    e.LockRight = true;
    objSkin->SkinWidth = 800;
    objSkin->SkinHeight = 600;
    frm_Ornavo form(windows_, "0.1");
    form.Start("");
    form.UpdateCurrentLayout();
    form.tmrResizer.stop();
    for (const int width : {810, 850, 900}) {
        form.resize(width, 600);
        EXPECT_TRUE(form.tmrResizer.isActive());
        EXPECT_EQ(form.tmrResizer.interval(), 200);
        EXPECT_EQ(form.host().Element[1].Bounds().width, 50) << "not before the timer";
    }
    Fire(form.tmrResizer);
    EXPECT_EQ(form.host().Element[1].Bounds().width, 150);
    EXPECT_FALSE(form.tmrResizer.isActive());
    EXPECT_EQ(form.windowTitle(), "Ornavo -> Blue -> Standard -> Current Size: 900x600");
}

TEST_F(CanvasTest, TheWindowGoesBackToTheSkinsSizeAndNotBelowItsLeast) {
    frm_Ornavo form(windows_, "0.1");
    form.Start("");
    form.SetWindowState(StateMaximised);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.pos() != QPoint(68, 9); }));
    objSkin->SkinWidth = 700;
    objSkin->SkinHeight = 620;
    form.ResetFormToOriginal();
    EXPECT_EQ(form.WindowState(), StateNormal);
    EXPECT_EQ(form.size(), QSize(700, 620));
    EXPECT_EQ(form.TwipBounds().left, 1020) << "not where the maximised window stood";
    EXPECT_EQ(form.TwipBounds().top, 135);
    objSkin->SkinWidth = -5;
    objSkin->SkinHeight = 100;
    form.ResetFormToOriginal();
    EXPECT_EQ(form.TwipBounds().width, 9000);
    EXPECT_EQ(form.TwipBounds().height, 9000);
}

TEST_F(CanvasTest, AnEmptyCanvasSaysHowToBegin) {
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = std::make_shared<dbLayout>();
    frm_Ornavo form(windows_, "0.1");
    form.Start("");
    const QColor card = form.grab().toImage().pixelColor(form.width() / 2 - 190, form.height() / 2);
    EXPECT_GT(card.value(), 230);
}

}  // namespace
}  // namespace ornavo::testing
