// SPDX-License-Identifier: MIT
#include "canvas/frm_ornavo.h"

#include "editor/settings_keys.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class CanvasTest : public SkinTest {
protected:
    ScriptedPrompts prompts_;
    RecordedWindows windows_;
};

TEST_F(CanvasTest, SettingsComeBackAndNonsenseDoesNot) {
    EXPECT_EQ(frm_Ornavo(windows_, "0.1").size(), QSize(800, 600));
    EXPECT_TRUE(viewSwitches.ShowGrid && viewSwitches.ShowPoints && viewSwitches.ShapeInverted);
    EXPECT_FALSE(viewSwitches.SnapGrid || viewSwitches.ShowLines);
    const std::pair<const char*, const char*> stored[] = {{"GridX", "7"},          {"GridY", "many"},
                                                          {"SnapGrid", "True"},    {"Left", "nowhere"},
                                                          {"ShowGrid", "perhaps"}, {"Top", "300"}};
    for (const auto& [key, value] : stored) SaveSetting("Ornavo", key, value);
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
        SaveSetting("Ornavo", "WindowState", "0");
    }
    EXPECT_EQ(windows_.unloaded, 3);
}

TEST_F(CanvasTest, TheCaptionTellsWhatIsOpen) {
    windows_.failure = "no such disk";
    frm_Ornavo form(windows_, "0.1");
    form.Start("Blue Moon");
    EXPECT_EQ(windows_.opened, "Blue Moon");
    EXPECT_EQ(prompts_.asked, std::vector<std::string>{"Loading Skin Error: no such disk"});
    objSkin->SkinName = "AC%2FDC";
    objSkin->Dirty = true;
    form.UpdateCaption();
    EXPECT_EQ(form.windowTitle(), "Ornavo -> AC%2FDC -> Standard* -> Current Size: 800x600");
    objSkin = std::make_shared<dbSkin>();
    form.UpdateCurrentLayout();
    EXPECT_EQ(form.windowTitle(), "Ornavo 0.1 (BETA)");
}

TEST_F(CanvasTest, TheWindowGoesBackToTheSkinsSizeAndNotBelowItsLeast) {
    frm_Ornavo form(windows_, "0.1");
    form.Start("");
    form.SetWindowState(StateMaximised);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.pos() != QPoint(68, 9); }));
    objSkin->SkinWidth = 700;
    objSkin->SkinHeight = 620;
    form.ResetFormToOriginal();
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 10620, 9735})) << "not where the maximised window stood";
    objSkin->SkinWidth = -5;
    objSkin->SkinHeight = 100;
    form.ResetFormToOriginal();
    EXPECT_EQ(form.TwipBounds(), (Rect{1020, 135, 9000, 9000}));
}

TEST_F(EditingTest, ARunOfResizesIsOneRebuildAfterTheLast) {
    Add("wide", TypeButton, {10, 10, 50, 20}).LockRight = true;
    Compose();
    for (const int width : {810, 850, 900}) {
        form_->resize(width, 600);
        EXPECT_EQ(form_->tmrResizer.isActive() ? form_->tmrResizer.interval() : 0, 200);
        EXPECT_EQ(host().Element[1].Bounds().width, 50) << "not before the timer";
    }
    Fire(form_->tmrResizer);
    EXPECT_EQ(host().Element[1].Bounds().width, 150);
    form_->parts().composed = [] { ADD_FAILURE() << "it has this size already"; };
    form_->tmrResizer_Timer();
}

TEST_F(EditingTest, APictureOfAnotherProgramIsShownWhenTheEditorIsActiveAgain) {
    const auto paint = [&](QColor colour, int age) {
        Picture("back.bmp", colour);
        std::filesystem::last_write_time(Path("back.bmp").toStdString(),
                                         std::filesystem::file_time_type() + std::chrono::hours(1000 + age));
    };
    const auto shownAfter = [&](Qt::ApplicationState state) {
        emit qApp->applicationStateChanged(state);
        return form_->grab({110, 110, 1, 1}).toImage().pixelColor(0, 0);
    };
    paint(Qt::red, 0);
    Add("Button1", TypeButton, {100, 100, 50, 40}).PicNormal = "back.bmp";
    Compose();
    paint(Qt::blue, 1);
    EXPECT_EQ(shownAfter(Qt::ApplicationInactive), QColor(Qt::red));
    Press(110, 110);
    EXPECT_EQ(shownAfter(Qt::ApplicationActive), QColor(Qt::red)) << "not during a drag";
    Release(110, 110);
    EXPECT_EQ(shownAfter(Qt::ApplicationActive), QColor(Qt::blue));
    EXPECT_FALSE(objSkin->Dirty);
}

}  // namespace
}  // namespace ornavo::testing
