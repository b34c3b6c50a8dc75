// SPDX-License-Identifier: MIT
#include "project/frm_skinproject.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

#include "base/failure.h"
#include "base/files.h"
#include "editor/selection.h"
#include "editor/settings_keys.h"
#include "project/layout_copy.h"
#include "support/scripted_prompts.h"

namespace ornavo::testing {
namespace {

namespace fs = std::filesystem;
using Unload = frm_SkinProject::Unload;

class FakeCanvas : public Canvas {
public:
    void UpdateCurrentLayout() override { composed = objCurrentLayout; }
    void UpdateCaption() override {}
    void ResetFormToOriginal() override { ++sized; }
    void ResetSelection() override { SelControl = nullptr, ++reset; }
    dbLayoutRef composed;  // the last one
    int sized = 0, reset = 0;
};

class FakeWindows : public Windows, public PropertiesPanel {
public:
    void LoadDebug(std::string_view skinName) override { loaded = skinName; }
    void UnloadOthers() override {}
    void ShowToolbox() override { ++toolboxes; }
    void ShowPreview() override { ++previews; }
    PropertiesPanel& properties() override { return *this; }
    void Open() override { sheetOf = SelControl; }
    std::string loaded;
    int toolboxes = 0, previews = 0;
    Control* sheetOf = nullptr;
};

/// Every rename fails, and so does every save.
class FullDisk : public FileLayer {
public:
    FullDisk() { UseFileLayer(this); }
    ~FullDisk() override { UseFileLayer(nullptr); }
    void Rename(const fs::path&, const fs::path&) override {
        throw Failure(61, "Files", "No space left on device");
    }
};

class PanelTest : public ::testing::Test {
protected:
    PanelTest() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        objSkin = std::make_shared<dbSkin>();
        objCurrentLayout = std::make_shared<dbLayout>();
        panel_ = std::make_unique<frm_SkinProject>(nullptr, windows_, canvas_,
                                                   SkinFiles(Root().string(), (Root() / "data").string()));
        panel_->show();
        Activate(*panel_);
    }
    static void Activate(QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ~PanelTest() override { SelControl = nullptr; }

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
    FakeWindows windows_;
    FakeCanvas canvas_;
    std::unique_ptr<frm_SkinProject> panel_;
};

TEST_F(PanelTest, BeforeASkinIsIn) {
    EXPECT_EQ(panel_->TwipBounds(), (Rect{10830, 945, 3045, 3090}));
    EXPECT_TRUE(panel_->btn_OpenSkin->isEnabled() && panel_->btn_CreateNewSkin->isEnabled());
    for (QWidget* control :
         {static_cast<QWidget*>(panel_->btn_SaveSkin), static_cast<QWidget*>(&List()),
          static_cast<QWidget*>(panel_->tbx_SkinName), static_cast<QWidget*>(panel_->btn_SkinProperties),
          static_cast<QWidget*>(panel_->btn_CloneLayout)})
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    EXPECT_FALSE(panel_->SaveSkin());
    panel_->resize(400, 300);
    EXPECT_EQ(panel_->TwipBounds().width, 3045);
    for (QWidget* child : panel_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child->focusPolicy() != Qt::NoFocus) {
            QAccessibleInterface* told = QAccessible::queryAccessibleInterface(child);
            EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << child->objectName().toStdString();
        }
}

TEST_F(PanelTest, OpeningByTheDialog) {
    MakeSkin("Blue", {"Standard", "Big Party"});
    Click(panel_->btn_OpenSkin);
    EXPECT_EQ(canvas_.sized, 0) << "Cancel changes nothing";
    prompts_.files = {Settings("Blue").string()};
    Click(panel_->btn_OpenSkin);
    EXPECT_EQ(panel_->tbx_SkinName->text(), "Blue");
    EXPECT_EQ(Items(), QStringList({"Standard", "Big Party", "<add new Layout>"}));
    EXPECT_TRUE(panel_->btn_SaveSkin->isEnabled() && panel_->btn_CloneLayout->isEnabled());
    EXPECT_EQ(canvas_.sized, 1);
    EXPECT_EQ(windows_.toolboxes, 1);
    EXPECT_GT(canvas_.reset, 0);
    ExpectShown("Standard");
}

TEST_F(PanelTest, ChoosingByMouseAndKeys) {
    OpenBlue();
    ClickItem(1);
    ExpectShown("Big_Party");
    Press(Qt::Key_Up);
    ExpectShown("Standard");
    const int resets = canvas_.reset;
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(canvas_.reset, resets + 1) << "the last item chooses nothing";
    EXPECT_FALSE(panel_->btn_CloneLayout->isEnabled() || panel_->btn_SaveToSkin->isEnabled());
    EXPECT_EQ(objCurrentLayout->Key, "Big_Party");
    Press(Qt::Key_Up);
    EXPECT_TRUE(panel_->btn_CloneLayout->isEnabled() && panel_->btn_SaveToSkin->isEnabled());
}

TEST_F(PanelTest, NewLayoutsAreNamedInTheList) {
    OpenBlue();
    const struct { const char *typed, *key; } rows[] = {{"2005", "L2005"}, {"Late Night", "Late_Night"}};
    for (const auto& row : rows) {
        objSkin->Dirty = false;
        ClickItem(List().topLevelItemCount() - 1);
        TypeLabel(row.typed);
        ExpectShown(row.key);
        EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 4);
        EXPECT_TRUE(objSkin->Dirty);
        EXPECT_TRUE(panel_->btn_CloneLayout->isEnabled());
    }
    EXPECT_EQ(Items(), QStringList({"Standard", "Big Party", "2005", "Late Night", LayoutList::AddNewText}));
    objSkin->Dirty = false;
    for (const char* typed : {"", LayoutList::AddNewText}) {
        ClickItem(4);
        TypeLabel(typed);
    }
    EXPECT_TRUE(prompts_.asked.empty());
    ClickItem(4);
    TypeLabel("big party");
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0], "Layout already exists: Layout already exists in current Skin!");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 4);
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_EQ(Items().last(), LayoutList::AddNewText);
}

TEST_F(PanelTest, ARenameKeepsTheKeyAndTheLock) {
    OpenBlue();
    Press(Qt::Key_F2);
    TypeLabel("Everyday");
    EXPECT_EQ(Items().first(), "Everyday");
    EXPECT_EQ(objSkin->dbLayouts->Item("Standard")->LayoutName, "Everyday");
    EXPECT_FALSE(objSkin->Dirty);
    Press(Qt::Key_F2);
    TypeLabel("");
    EXPECT_EQ(Items().first(), "Everyday");
    Press(Qt::Key_Delete);
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0], "Layout locked: You cannot delete Standard Layout!");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 2);
}

TEST_F(PanelTest, DeletingAsks) {
    OpenBlue();
    ClickItem(1);
    prompts_.answers = {Answer::No, Answer::Yes};
    Press(Qt::Key_Delete);
    EXPECT_EQ(prompts_.asked[0], "Delete Layout: Do really want to delete Layout 'Big Party'?");
    EXPECT_EQ(objSkin->dbLayouts->Count(), 2);
    EXPECT_FALSE(objSkin->Dirty);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Items(), QStringList({"Standard", LayoutList::AddNewText}));
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_EQ(canvas_.composed->Key, "Big_Party") << "shown until another is chosen";
    EXPECT_FALSE(panel_->btn_SkinProperties->isEnabled() || panel_->btn_CloneLayout->isEnabled());
    Press(Qt::Key_Delete);
    EXPECT_EQ(prompts_.asked.size(), 2u) << "nothing is selected";
    ClickItem(0);
    ExpectShown("Standard");
}

TEST_F(PanelTest, SavingRepairsTheNameFirst) {
    OpenBlue();
    panel_->tbx_SkinName->setFocus();
    panel_->tbx_SkinName->setText("My:Skin?");
    QTest::keyClick(panel_->tbx_SkinName, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(panel_->tbx_SkinName->text(), "My;Skin!");
    EXPECT_TRUE(fs::exists(Settings("My;Skin!"))) << "a copy under the other name";
    EXPECT_TRUE(fs::exists(Settings("Blue"))) << "the old one stays";
    for (const char* name : {"", "   ", "**", "."}) {
        panel_->tbx_SkinName->setText(name);
        EXPECT_FALSE(panel_->SaveSkin());
        EXPECT_EQ(prompts_.asked.back(), "Ornavo: Please enter a Skin name!");
        EXPECT_EQ(objSkin->SkinName, "My;Skin!");
    }
    panel_->tbx_SkinName->setText("Blue");
    prompts_.answers = {Answer::No};
    EXPECT_FALSE(panel_->SaveSkin());
    EXPECT_EQ(objSkin->SkinName, "My;Skin!") << "the pictures are still found there";
}

TEST_F(PanelTest, AnOpenLabelIsTakenBeforeASave) {
    OpenBlue();
    Press(Qt::Key_F2);
    ASSERT_NE(Label(), nullptr);
    Label()->setText("Everyday");
    EXPECT_TRUE(panel_->SaveSkin());
    EXPECT_EQ(Stored("Blue").dbLayouts->Item("Standard")->LayoutName, "Everyday");
}

TEST_F(PanelTest, CloningTwice) {
    OpenBlue();
    ClickItem(1);
    objCurrentLayout->dbLayoutElements->Item("Main")->LeftX = 77;
    prompts_.inputs = {"Big Party", "Big Party"};
    Click(panel_->btn_CloneLayout);
    EXPECT_EQ(prompts_.asked[0], "New Layout: Enter a name for new Layout [Big Party]");
    ExpectShown("Big_Party_(cloned2)");
    objCurrentLayout->dbLayoutElements->Item("Main")->LeftX = 5;
    EXPECT_EQ(objSkin->dbLayouts->Item("Big_Party")->dbLayoutElements->Item("Main")->LeftX, 77)
        << "nothing is shared";
    ClickItem(1);
    Click(panel_->btn_CloneLayout);
    ExpectShown("Big_Party_(cloned3)");
    EXPECT_EQ(Items().mid(2),
              QStringList({"Big Party (cloned2)", "Big Party (cloned3)", "<add new Layout>"}));
    EXPECT_EQ(Stored("Blue").dbLayouts->Count(), 4) << "a clone is a save";
    Click(panel_->btn_CloneLayout);
    EXPECT_EQ(objSkin->dbLayouts->Count(), 4) << "no name, no layout";
}

TEST_F(PanelTest, ACloneThatCannotBeSavedChangesNothing) {
    OpenBlue();
    objSkin->Dirty = true;
    const dbLayoutRef before = objCurrentLayout;
    prompts_.inputs = {"Other"};
    {
        const FullDisk full;
        Click(panel_->btn_CloneLayout);
    }
    EXPECT_EQ(objSkin->dbLayouts->Count(), 2);
    EXPECT_EQ(objCurrentLayout, before);
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_NE(prompts_.asked.back().find("No space left on device"), std::string::npos);
    ExpectShown("Standard");
}

TEST_F(PanelTest, FreeNames) {
    dbSkin skin;
    for (const char* name : {"Party", "Party (cloned2)", "Odd (cloned)"}) skin.AddNewLayout(name);
    const struct {
        const char *given, *free;
    } rows[] = {{"Ball", "Ball"},
                {"Party", "Party (cloned3)"},
                {"Party (cloned2)", "Party (cloned3)"},
                {"Party (cloned7) x", "Party (cloned3)"},
                {"Ball (cloned)", "Ball (cloned2)"},
                {"Odd (cloned)", "Odd (cloned2)"}};
    for (const auto& row : rows) EXPECT_EQ(GetFreeClonedText(skin, row.given), row.free) << row.given;
}

TEST_F(PanelTest, InsertingIntoAnotherSkin) {
    OpenBlue();
    MakeSkin("Green", {"Big Party"});
    const fs::path blue = Root() / "Skins" / "Blue", green = Root() / "Skins" / "Green";
    ReplaceFile(blue / "a.bmp", "of blue");
    ReplaceFile(blue / "b.bmp", "of blue");
    ReplaceFile(green / "b.bmp", "of green");
    ClickItem(1);
    dbLayoutElement& main = *objCurrentLayout->dbLayoutElements->Item("Main");
    main.PicNormal = "a.bmp";
    main.PicOver = (blue / "b.bmp").string();
    objSkin->Dirty = true;
    prompts_.inputs = {"Big Party"};
    prompts_.files = {Settings("Green").string()};
    Click(panel_->btn_SaveToSkin);
    const dbSkin stored = Stored("Green");
    ASSERT_EQ(stored.dbLayouts->Count(), 2);
    const dbLayoutRef inserted = stored.dbLayouts->Item("Big_Party_(cloned2)");
    EXPECT_EQ(inserted->dbLayoutElements->Item("Main")->PicNormal, "a.bmp");
    EXPECT_EQ(fileLayer().Read(green / "a.bmp"), "of blue");
    EXPECT_EQ(fileLayer().Read(green / "b.bmp"), "of green") << "what the target has stays";
    EXPECT_EQ(main.PicOver, (blue / "b.bmp").string()) << "the source is as it was";
    EXPECT_TRUE(objSkin->Dirty);
    ExpectShown("Big_Party");
}

TEST_F(PanelTest, InsertingIntoTheSameSkin) {
    OpenBlue();
    ClickItem(1);
    objCurrentLayout->dbLayoutElements->Item("Main")->LeftX = 77;
    objSkin->Dirty = true;
    prompts_.inputs = {"Ball"};
    prompts_.files = {Settings("Blue").string()};
    Click(panel_->btn_SaveToSkin);
    ExpectShown("Big_Party");
    EXPECT_EQ(Items(), QStringList({"Standard", "Big Party", "Ball", LayoutList::AddNewText}));
    EXPECT_EQ(objSkin->dbLayouts->Item("Ball")->dbLayoutElements->Item("Main")->LeftX, 77);
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(PanelTest, AnInsertDoesNotOverwriteAStranger) {
    OpenBlue();
    MakeSkin("Green", {"Night"});
    fs::copy(Root() / "Skins" / "Green", Root() / "Skins" / "GreenCopy");
    prompts_.inputs = {"Ball", "Ball"};
    prompts_.files = {Settings("GreenCopy").string(), (Root() / "gone" / "SkinSettings.xml").string()};
    prompts_.answers = {Answer::No};
    Click(panel_->btn_SaveToSkin);
    EXPECT_EQ(Stored("Green").dbLayouts->Count(), 1) << "the copy's file names its original";
    EXPECT_EQ(prompts_.asked.size(), 2u);
    Click(panel_->btn_SaveToSkin);
    EXPECT_FALSE(fs::exists(Root() / "gone"));
    EXPECT_EQ(prompts_.asked.size(), 4u) << "a file that can't be read is told";
}

TEST_F(PanelTest, TheSheetOfTheWholeSkin) {
    OpenBlue();
    const int resets = canvas_.reset;
    Click(panel_->btn_SkinProperties);
    EXPECT_EQ(windows_.sheetOf, panel_->btn_SkinProperties);
    EXPECT_EQ(canvas_.reset, resets + 1);
    EXPECT_EQ(SelKey, "");
}

TEST_F(PanelTest, ANewSkin) {
    OpenBlue();
    Click(panel_->btn_CreateNewSkin);
    ASSERT_TRUE(panel_->AddNewSkin);
    EXPECT_EQ(panel_->AddNewSkin->tbx_Width->text(), "1024");
    EXPECT_EQ(panel_->AddNewSkin->tbx_Height->text(), "768");
    panel_->AddNewSkin->tbx_SkinName->setText("   ");
    QTest::keyClick(panel_->AddNewSkin->tbx_SkinName, Qt::Key_Return);
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0], "Ornavo: Please enter a Skin name!");
    QTest::keyClick(panel_->AddNewSkin, Qt::Key_Escape);
    EXPECT_EQ(objSkin->SkinName, "Blue") << "Escape cancels";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Click(panel_->btn_CreateNewSkin);
    ASSERT_TRUE(panel_->AddNewSkin);
    panel_->AddNewSkin->tbx_SkinName->setText("My:Skin?");
    panel_->AddNewSkin->tbx_Width->setText("100");
    panel_->AddNewSkin->tbx_Height->setText("1200");
    QTest::keyClick(panel_->AddNewSkin->tbx_Width, Qt::Key_Return);
    EXPECT_EQ(objSkin->SkinName, "My;Skin!");
    EXPECT_EQ(objSkin->SkinWidth, 600);
    EXPECT_EQ(objSkin->SkinHeight, 1200);
    EXPECT_EQ(objSkin->SkinFolder(), (Root() / "Skins" / "My;Skin!").string() + "/");
    EXPECT_EQ(Items(), QStringList({"Admin-Mode", "Kiosk-Mode", LayoutList::AddNewText}));
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 4);
    EXPECT_FALSE(objSkin->Dirty || fs::exists(Root() / "Skins" / "My;Skin!"));
    EXPECT_EQ(settings::NewSkinWidth.Read(), 600);
    EXPECT_EQ(settings::NewSkinHeight.Read(), 1200);
    ExpectShown("Admin-Mode");
}

TEST_F(PanelTest, TheSizesOfANewSkin) {
    SkinFiles files(Root().string(), "");
    SaveSetting("CreateNewSkin", "Height", "tall");
    auto* dialog = new frm_AddNewSkin(panel_.get(), files);
    EXPECT_EQ(dialog->tbx_Height->text(), "768") << "a text where a number should be";
    dialog->show();
    const struct {
        const char *typed, *kept;
    } rows[] = {{"100", "600"}, {"600", "600"},  {"601", "601"},   {"", "600"},
                {"x", "600"},   {"-700", "600"}, {"9e999", "600"}, {"1920", "1920"}};
    for (const auto& row : rows) {
        dialog->tbx_Width->selectAll();
        QTest::keyClick(dialog->tbx_Width, Qt::Key_Backspace);
        QTest::keyClicks(dialog->tbx_Width, row.typed);
        QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(dialog->tbx_Width, &leaves);
        EXPECT_EQ(dialog->tbx_Width->text(), row.kept) << row.typed;
    }
    dialog->close();
}

TEST_F(PanelTest, TheQuestionAtTheEnd) {
    OpenBlue();
    panel_->MoveTwips({1500, 1200, 3045, 4500});
    EXPECT_TRUE(panel_->close());
    EXPECT_TRUE(prompts_.asked.empty()) << "an unchanged skin asks nothing";
    const struct {
        Answer answer;
        bool full;
        Unload outcome;
        bool changed;
    } rows[] = {{Answer::Cancel, false, Unload::Cancelled, true},
                {Answer::Yes, true, Unload::SaveFailed, true},
                {Answer::No, false, Unload::Done, true},
                {Answer::Yes, false, Unload::Done, false}};
    for (const auto& row : rows) {
        panel_->show();
        objSkin->Dirty = true;
        objSkin->SkinWidth = 999;
        settings::SkinProjectLeft.Write(0);
        prompts_.answers = {row.answer};
        std::unique_ptr<FullDisk> full;
        if (row.full) full = std::make_unique<FullDisk>();
        EXPECT_EQ(panel_->close(), row.outcome == Unload::Done);
        EXPECT_EQ(panel_->LastUnload(), row.outcome);
        EXPECT_EQ(panel_->isVisible(), row.outcome != Unload::Done);
        EXPECT_EQ(objSkin->Dirty, row.changed);
        EXPECT_EQ(Stored("Blue").SkinWidth, row.changed ? 700 : 999);
        EXPECT_EQ(settings::SkinProjectLeft.Read(), 1500) << "written whatever is answered";
    }
    EXPECT_EQ(prompts_.asked[0], "Save current Skin: Save changes of current Skin before closing Ornavo?");
    EXPECT_EQ(settings::SkinProjectHeight.Read(), 4500);
    EXPECT_TRUE(fs::exists(Root() / "data" / "Recovered")) << "No drops, but the text is kept";
}

TEST_F(PanelTest, TheLonePanelCanStillSave) {
    OpenBlue();
    objSkin->Dirty = true;
    panel_->StandAlone();
    EXPECT_TRUE(panel_->isVisible() && panel_->testAttribute(Qt::WA_QuitOnClose));
    prompts_.files = {Settings("Blue").string()};
    Click(panel_->btn_OpenSkin);
    Click(panel_->btn_CloneLayout);
    EXPECT_EQ(prompts_.files.size(), 1u) << "nobody was asked";
    Click(panel_->btn_SaveSkin);
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_TRUE(panel_->close());
}

TEST_F(PanelTest, ADroppedFolderIsOpened) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/skins/Blue")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(panel_.get(), &enter);
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(panel_.get(), &event);
    EXPECT_EQ(windows_.loaded, "/skins/Blue");
}

}  // namespace
}  // namespace ornavo::testing
