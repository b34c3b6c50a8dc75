// SPDX-License-Identifier: MIT
// The project panel on a scratch folder with two skins, its dialogs scripted.
#pragma once

#include <QLineEdit>
#include <QTemporaryDir>

#include "base/files.h"
#include "editor/settings_keys.h"
#include "project/frm_skinproject.h"
#include "project/layout_copy.h"
#include "support/recorded_windows.h"
#include "support/scripted_prompts.h"
#include "support/step_layer.h"

namespace ornavo::testing {

namespace fs = std::filesystem;
using Unload = frm_SkinProject::Unload;
using Texts = std::vector<std::string>;

class PanelTest : public ::testing::Test {
protected:
    PanelTest() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        objSkin = std::make_shared<dbSkin>();
        objCurrentLayout = std::make_shared<dbLayout>();
        panel_ = std::make_unique<frm_SkinProject>(nullptr, windows_, canvas_,
                                                   SkinFiles(Root().string(), (Root() / "data").string()));
        panel_->show();
        panel_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(panel_.get()));
    }

    fs::path Root() const { return fs::canonical(folder_.path().toStdString()); }
    fs::path Settings(const char* skin) const { return Root() / "Skins" / skin / "SkinSettings.xml"; }
    /// A saved skin "Blue" with the layouts "Standard" and "Big Party" is open.
    void OpenBlue() {
        MakeSkin("Blue", {"Standard", "Big Party"});
        panel_->LoadDebug(PlaceOfSkin("Blue", Root().string()));
    }
    void MakeSkin(const char* name, std::initializer_list<const char*> layouts) const {
        dbSkin skin;
        skin.SetBasePath((Root() / "Skins").string());
        skin.SkinName = name;
        skin.SkinWidth = skin.SkinHeight = 700;
        for (const char* layout : layouts) skin.AddNewLayout(layout)->AddDummyPoints();
        skin.SaveSkin(false);
    }
    dbSkin Stored(const char* name) const {
        dbSkin skin;
        skin.SetBasePath((Root() / "Skins").string());
        skin.SkinName = name;
        skin.LoadSkin();
        return skin;
    }
    QStringList Items() const {
        QStringList items;
        for (int i = 0; i < List().topLevelItemCount(); ++i) items += List().topLevelItem(i)->text(0);
        return items;
    }
    LayoutList& List() const { return *panel_->lst_Layouts; }
    void ClickItem(int row) const {
        List().scrollToItem(List().topLevelItem(row));
        const QRect place = List().visualItemRect(List().topLevelItem(row));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place.center());
    }
    static void Click(TileCommand* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void Press(int key) const { QTest::keyClick(panel_->lst_Layouts, static_cast<Qt::Key>(key)); }
    /// The open label, null if there is none.
    QLineEdit* Label() const { return List().viewport()->findChild<QLineEdit*>(); }
    void TypeLabel(const QString& text) const {
        QLineEdit* label = Label();
        ASSERT_NE(label, nullptr);
        label->setText(text);
        QTest::keyClick(label, Qt::Key_Return);
        // The label closes in one turn of the loop and is told in the next.
        for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// List, current layout and canvas show one layout.
    void ExpectShown(const std::string& key) const {
        EXPECT_EQ(List().SelectedKey(), key);
        EXPECT_EQ(objCurrentLayout->Key, key);
        EXPECT_EQ(canvas_.composed, objCurrentLayout);
        EXPECT_EQ(objSkin->dbLayouts->Find(key), objCurrentLayout);
    }

    QTemporaryDir folder_;
    ScriptedPrompts prompts_;
    RecordedWindows windows_;
    RecordedCanvas canvas_;
    std::unique_ptr<frm_SkinProject> panel_;
};

}  // namespace ornavo::testing
