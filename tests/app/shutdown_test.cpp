// SPDX-License-Identifier: MIT
// The end of the program: what the project panel asks, what its answers keep open, and what is saved.
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include "app/program_fixture.h"
#include "base/files.h"
#include "base/lookup.h"
#include "editor/settings_keys.h"
#include "support/step_layer.h"

namespace ornavo::testing {
namespace {

class ShutdownTest : public ProgramTest {
protected:
    ShutdownTest() {
        dbSkin skin;
        skin.SetBasePath(Folder() + "/Skins");
        skin.SkinName = "Blue";
        skin.AddNewLayout("Standard")->AddDummyPoints();
        skin.SaveSkin(false);
        Start("Blue");
        std::filesystem::remove(Folder() + "/Skins/Blue/SkinSettings.xml");
        program_->ToggleMagnifier();
        QCoreApplication::processEvents();
        objSkin->Dirty = true;
    }
    bool IsSaved() const { return FileExists(Folder() + "/Skins/Blue/SkinSettings.xml"); }
    static std::string Shown() {
        std::string names;
        for (const char* name : {"frm_Ornavo", "frm_SkinProject", "frm_Toolbox", "frm_Magnifier"})
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->objectName() == name && widget->isVisible()) names += std::string(name) + ' ';
        return names;
    }
};

TEST_F(ShutdownTest, AnUnchangedSkinAsksNothing) {
    ASSERT_EQ(Shown(), "frm_Ornavo frm_SkinProject frm_Toolbox frm_Magnifier ");
    objSkin->Dirty = false;
    Main().move(120, 90);
    EXPECT_TRUE(Main().close());
    EXPECT_EQ(Shown(), "");
    EXPECT_TRUE(prompts_.asked.empty());
    EXPECT_EQ(settings::OrnavoLeft.Read(), 1800);
    EXPECT_EQ(settings::OrnavoTop.Read(), 1350);
}

TEST_F(ShutdownTest, LookingAtEveryLayoutLeavesNothing) {
    objSkin->Dirty = false;
    std::filesystem::copy(ORNAVO_SOURCE_DIR "/skins", Folder() + "/Skins",
                          std::filesystem::copy_options::recursive);
    for (const char* skin : {"Aurora", "Classic"}) {
        program_->LoadDebug(skin);
        for (int row = 0; row + 1 < Panel().lst_Layouts->topLevelItemCount(); ++row)
            Panel().lst_Layouts->setCurrentItem(Panel().lst_Layouts->topLevelItem(row));
        std::filesystem::remove_all(Folder() + "/Recovered");
        EXPECT_TRUE(Panel().close());
        EXPECT_FALSE(FolderExists(Folder() + "/Recovered")) << skin;
        Panel().show();
    }
    objSkin->dbLayouts->Item(1)->LayoutName = "Renamed";
    EXPECT_TRUE(Main().close());
    EXPECT_TRUE(FolderExists(Folder() + "/Recovered"));
}

TEST_F(ShutdownTest, YesSavesAndNoDoesNot) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        prompts_.answers = {answer};
        objSkin->Dirty = true;
        Main().show();
        Panel().show();
        EXPECT_TRUE(Main().close());
        EXPECT_EQ(Shown(), "");
        EXPECT_EQ(IsSaved(), answer == Answer::Yes);
        EXPECT_EQ(prompts_.asked.back(),
                  "Save current Skin: Save changes of current Skin before closing Ornavo?");
    }
    EXPECT_EQ(prompts_.asked.size(), 2u) << "once each";
}

TEST_F(ShutdownTest, TheQuestionComesThoughThePanelIsClosed) {
    prompts_.answers = {Answer::No};
    EXPECT_TRUE(Panel().close());
    prompts_.answers = {Answer::Cancel, Answer::Yes};
    EXPECT_TRUE(Main().close());
    EXPECT_EQ(prompts_.asked.size(), 3u) << "at the panel, at the exit, and of the panel that came back";
    EXPECT_TRUE(IsSaved());
}

TEST_F(ShutdownTest, ACommandLineThatLeadsNowhereOpensNothing) {
    Start("Nowhere");
    EXPECT_EQ(Main().windowTitle(), "Ornavo 0.1 (BETA)");
    EXPECT_FALSE(Panel().btn_SaveSkin->isEnabled() || Panel().lst_Layouts->isEnabled());
}

/// Lines of the menu that opens, a "+" before those that are ticked; the one with the caption is chosen.
template <class Opening>
QString Menu(Opening opening, const QString& chosen = {}) {
    QString lines;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) return;
        QAction* last = menu->actions().last();
        for (QAction* line : last->menu() ? last->menu()->actions() : menu->actions()) {
            lines += (lines.isEmpty() ? "" : ", ") + QString(line->isChecked() ? "+" : "") + line->text();
            if (line->text() == chosen) line->trigger();
        }
        menu->close();
    });
    opening();
    return lines;
}

TEST_F(ShutdownTest, AMenuShowsAndHidesTheWindows) {
    const auto atCanvas = [] { QTest::mousePress(&Main(), Qt::RightButton, {}, {400, 400}); };
    const auto byKey = [] { QTest::keyClick(&Main(), Qt::Key_F10, Qt::ShiftModifier); };
    EXPECT_EQ(Menu(atCanvas, "Toolbox"), "+Skin Project, +Toolbox, Properties, +Magnifier");
    EXPECT_EQ(Menu(byKey, "Skin Project"), "+Skin Project, Toolbox, Properties, +Magnifier");
    EXPECT_EQ(Shown(), "frm_Ornavo frm_Magnifier ");
    Menu(atCanvas, "Skin Project");
    Menu(atCanvas, "Toolbox");
    EXPECT_EQ(Shown(), "frm_Ornavo frm_SkinProject frm_Toolbox frm_Magnifier ");
    Window<frm_Toolbox>().btn_AddButton->PerformClick();
    EXPECT_EQ(Menu(byKey), "+Skin Project, +Toolbox, +Properties, +Magnifier") << "in the element's menu";
    objSkin->Dirty = false;
    const int corners = objCurrentLayout->dbPoints->Count();
    EXPECT_EQ(Menu([] { QTest::mousePress(&Main(), Qt::RightButton, {}, {1, 300}); }), "");
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), corners + 1) << "a side gets a corner, and no menu opens";
}

TEST_F(ShutdownTest, AfterCancelThePanelIsTheLastWindowAndCanSave) {
    prompts_.answers = {Answer::Cancel, Answer::Cancel, Answer::Yes};
    EXPECT_TRUE(Main().close()) << "Cancel keeps the panel alone";
    EXPECT_EQ(prompts_.asked.size(), 2u);
    EXPECT_EQ(Shown(), "frm_SkinProject ");
    EXPECT_TRUE(Panel().btn_SaveSkin->isEnabled());
    for (const QWidget* rest :
         {static_cast<QWidget*>(Panel().btn_OpenSkin), static_cast<QWidget*>(Panel().btn_CreateNewSkin),
          static_cast<QWidget*>(Panel().lst_Layouts), static_cast<QWidget*>(Panel().btn_SkinProperties),
          static_cast<QWidget*>(Panel().btn_CloneLayout)})
        EXPECT_FALSE(rest->isEnabled()) << rest->objectName().toStdString();
    EXPECT_FALSE(IsSaved());
    EXPECT_TRUE(Panel().close());
    EXPECT_TRUE(IsSaved());
    EXPECT_EQ(Shown(), "");
}

TEST_F(ShutdownTest, AFailedSaveStopsTheClosing) {
    const FullDisk full;
    prompts_.answers = {Answer::Yes};
    EXPECT_FALSE(Main().close());
    EXPECT_EQ(Shown(), "frm_Ornavo frm_SkinProject frm_Toolbox frm_Magnifier ");
    EXPECT_EQ(prompts_.asked.size(), 2u) << "the question, and what went wrong";
    EXPECT_TRUE(objSkin->Dirty);
}

}  // namespace
}  // namespace ornavo::testing
