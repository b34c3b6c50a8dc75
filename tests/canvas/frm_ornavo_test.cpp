// SPDX-License-Identifier: MIT
#include "canvas/frm_ornavo.h"

#include <filesystem>

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

TEST_F(CanvasTest, AFirstRunHasItsDesignedStateSettingsComeBackAndNonsenseDoesNot) {
    {
        frm_Ornavo form(windows_, "0.1");
        EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 12120, 9435}));
        EXPECT_EQ(form.size(), QSize(800, 600));
        EXPECT_EQ(form.WindowState(), StateNormal);
        EXPECT_TRUE(viewSwitches.ShowGrid && viewSwitches.ShowPoints && viewSwitches.ShapeInverted);
        EXPECT_FALSE(viewSwitches.SnapGrid || viewSwitches.ShowLines);
    }
    for (const auto& [key, value] : {std::pair{"GridX", "7"},
                                     {"GridY", "many"},
                                     {"SnapGrid", "True"},
                                     {"ShowGrid", "perhaps"},
                                     {"Left", "nowhere"},
                                     {"Top", "300"}})
        SaveSetting("Ornavo", key, value);
    frm_Ornavo form(windows_, "0.1");
    EXPECT_TRUE(viewSwitches.GridX == 7 && viewSwitches.GridY == 10);
    EXPECT_TRUE(viewSwitches.SnapGrid && viewSwitches.ShowGrid);
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
        EXPECT_EQ((Rect{settings::OrnavoLeft.Read(), settings::OrnavoTop.Read(), settings::OrnavoWidth.Read(),
                        settings::OrnavoHeight.Read()}),
                  (Rect{1500, 1200, 12000, 9600}));
        EXPECT_EQ(settings::GridX.Read(), 20 + state);
        EXPECT_TRUE(settings::ShowLines.Read());
        EXPECT_FALSE(form.tmrSelector.isActive());
        SaveSetting("Ornavo", "WindowState", "0");
    }
    EXPECT_EQ(windows_.unloaded, 3);
}

TEST_F(CanvasTest, TheCaptionAndTheCardOfAnEmptyCanvas) {
    windows_.failure = "no such disk";
    frm_Ornavo form(windows_, "0.1");
    form.Start("Blue Moon");
    EXPECT_EQ(windows_.opened, "Blue Moon");
    EXPECT_EQ(prompts_.asked, std::vector<std::string>{"Loading Skin Error: no such disk"});
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo -> Blue -> Standard -> Current Size: 800x600");
    objSkin->Dirty = true;
    objSkin->SkinName = "AC%2FDC";
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo -> AC%2FDC -> Standard* -> Current Size: 800x600");
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = std::make_shared<dbLayout>();
    form.UpdateCurrentLayout();
    EXPECT_EQ(form.windowTitle(), "Ornavo 0.1 (BETA)");
    const QColor card = form.grab().toImage().pixelColor(form.width() / 2 - 190, form.height() / 2);
    EXPECT_GT(card.value(), 230);
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
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 10620, 9735})) << "not where the maximised window stood";
    objSkin->SkinWidth = -5;
    objSkin->SkinHeight = 100;
    form.ResetFormToOriginal();
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 9000, 9000}));
}

class ChangedPictureTest : public EditingTest {};

TEST_F(ChangedPictureTest, APictureOfAnotherProgramIsShownWhenTheEditorIsActiveAgain) {
    const auto paint = [&](QColor colour, int age) {
        Picture("back.bmp", colour);
        const std::filesystem::path file = Path("back.bmp").toStdString();
        std::filesystem::last_write_time(file,
                                         std::filesystem::file_time_type() + std::chrono::hours(1000 + age));
    };
    const auto shownAfter = [&](Qt::ApplicationState state) {
        emit qApp->applicationStateChanged(state);
        return form_->grab({110, 110, 1, 1}).toImage().pixelColor(0, 0);
    };
    paint(Qt::red, 0);
    Add("Button1", TypeButton, {100, 100, 50, 40}).PicNormal = "back.bmp";
    Compose();
    Click(105, 105);
    paint(Qt::blue, 1);
    EXPECT_EQ(shownAfter(Qt::ApplicationInactive), QColor(Qt::red));
    Press(110, 110);
    EXPECT_EQ(shownAfter(Qt::ApplicationActive), QColor(Qt::red)) << "not during a drag";
    Release(110, 110);
    form_->hide();
    EXPECT_EQ(shownAfter(Qt::ApplicationActive), QColor(Qt::red)) << "nor behind the preview";
    form_->show();
    EXPECT_EQ(shownAfter(Qt::ApplicationActive), QColor(Qt::blue));
    EXPECT_EQ(SelKey(), "Button1");
    EXPECT_FALSE(objSkin->Dirty);
    ASSERT_TRUE(QFile::remove(Path("back.bmp")));
    EXPECT_NE(shownAfter(Qt::ApplicationActive), QColor(Qt::blue)) << "gone";
}

}  // namespace
}  // namespace ornavo::testing
