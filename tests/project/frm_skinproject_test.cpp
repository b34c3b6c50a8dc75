// SPDX-License-Identifier: MIT
#include "project/frm_skinproject.h"

#include "support/panel_fixture.h"

namespace ornavo::testing {
namespace {

TEST_F(PanelTest, OpeningByTheDialog) {
    MakeSkin("Blue", {"Standard", "Big Party"});
    EXPECT_EQ(panel_->TwipBounds(), (Rect{10830, 945, 3045, 3090}));
    EXPECT_FALSE(panel_->btn_SaveSkin->isEnabled() || panel_->SaveSkin());
    Click(panel_->btn_OpenSkin);
    EXPECT_EQ(canvas_.sized, 0) << "Cancel changes nothing";
    prompts_.files = {Settings("Blue").string()};
    Click(panel_->btn_OpenSkin);
    EXPECT_EQ(panel_->tbx_SkinName->text(), "Blue");
    EXPECT_TRUE(panel_->btn_SaveSkin->isEnabled() && panel_->btn_CloneLayout->isEnabled());
    EXPECT_EQ(canvas_.sized, 1);
    EXPECT_EQ(windows_.toolboxes, 1);
    ExpectShown("Standard");
    prompts_.files = {Settings("Blue").string()};
    const dbSkinRef open = objSkin;
    const FullDisk disk;
    Click(panel_->btn_OpenSkin);
    EXPECT_EQ(objSkin, open);
    EXPECT_EQ(prompts_.asked.size(), 1u);
}

TEST_F(PanelTest, ChoosingByMouseAndKeys) {
    OpenBlue();
    ClickItem(1);
    ExpectShown("Big_Party");
    Press(Qt::Key_Up);
    ExpectShown("Standard");
    for (int times = 0; times < 2; ++times) Press(Qt::Key_Down);
    EXPECT_FALSE(panel_->btn_CloneLayout->isEnabled() || panel_->btn_SaveToSkin->isEnabled());
    EXPECT_EQ(objCurrentLayout->Key, "Big_Party") << "the last item chooses nothing";
    Press(Qt::Key_Up);
    EXPECT_TRUE(panel_->btn_CloneLayout->isEnabled() && panel_->btn_SaveToSkin->isEnabled());
}

TEST_F(PanelTest, NewLayoutsAreNamedInTheList) {
    OpenBlue();
    for (const auto& [typed, key] : {std::pair{"2005", "L2005"}, {"Late Night", "Late_Night"}}) {
        objSkin->Dirty = false;
        ClickItem(List().topLevelItemCount() - 1);
        TypeLabel(typed);
        ExpectShown(key);
        EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 4);
        EXPECT_TRUE(objSkin->Dirty && panel_->btn_CloneLayout->isEnabled());
    }
    objSkin->Dirty = false;
    for (const char* typed : {"", LayoutList::AddNewText, "big party"}) {
        ClickItem(4);
        TypeLabel(typed);
    }
    EXPECT_EQ(prompts_.asked, Texts{"Layout already exists: Layout already exists in current Skin!"});
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_EQ(Items(), QStringList({"Standard", "Big Party", "2005", "Late Night", LayoutList::AddNewText}));
}

TEST_F(PanelTest, ARenameKeepsTheKeyAndTheLock) {
    OpenBlue();
    for (const char* typed : {"Every\u65E5", ""}) {
        Press(Qt::Key_F2);
        TypeLabel(QString::fromUtf8(typed));
        EXPECT_EQ(Items().first(), "Every?") << "as the file will have it";
    }
    EXPECT_EQ(objSkin->dbLayouts->Item("Standard")->LayoutName, "Every?");
    EXPECT_FALSE(objSkin->Dirty);
    Press(Qt::Key_Delete);
    EXPECT_EQ(prompts_.asked, Texts{"Layout locked: You cannot delete Standard Layout!"});
    EXPECT_EQ(objSkin->dbLayouts->Count(), 2);
}

TEST_F(PanelTest, DeletingAsksAndChoosesAnother) {
    MakeSkin("Blue", {"One", "Two", "Three"});
    panel_->LoadDebug(PlaceOfSkin("Blue", Root().string()));
    panel_->show();
    ClickItem(0);
    prompts_.answers = {Answer::No};
    Press(Qt::Key_Delete);
    EXPECT_EQ(prompts_.asked, Texts{"Delete Layout: Do really want to delete Layout 'One'?"});
    EXPECT_TRUE(objSkin->dbLayouts->Count() == 3 && !objSkin->Dirty);
    for (const char* next : {"Two", "Three", ""}) {
        prompts_.answers = {Answer::Yes};
        Press(Qt::Key_Delete);
        if (*next) ExpectShown(next);
        EXPECT_EQ(objCurrentLayout->Key, next);
        EXPECT_EQ(panel_->btn_CloneLayout->isEnabled(), *next != 0) << next;
    }
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_EQ(canvas_.composed, objCurrentLayout) << "the canvas is bare";
    Press(Qt::Key_Delete);  // nothing is selected
    ClickItem(0);
    TypeLabel("Four");
    EXPECT_TRUE(panel_->btn_CloneLayout->isEnabled());
}

TEST_F(PanelTest, ANewSkin) {
    OpenBlue();
    SaveSetting("CreateNewSkin", "Height", "tall");
    Click(panel_->btn_CreateNewSkin);
    ASSERT_TRUE(panel_->AddNewSkin);
    frm_AddNewSkin& dialog = *panel_->AddNewSkin;
    EXPECT_EQ(dialog.tbx_Width->text() + "x" + dialog.tbx_Height->text(), "1024x768");
    for (const auto& [typed, kept] :
         {std::pair{"601", "601"}, {"x", "600"}, {"9e999", "600"}, {"1920 px", "1920"}, {"599", "600"}}) {
        dialog.tbx_Width->setText(typed);
        QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(dialog.tbx_Width, &leaves);
        EXPECT_EQ(dialog.tbx_Width->text(), kept) << typed;
    }
    dialog.tbx_SkinName->setText("   ");
    QTest::keyClick(dialog.tbx_SkinName, Qt::Key_Return);
    EXPECT_EQ(prompts_.asked, Texts{"Ornavo: Please enter a Skin name!"});
    dialog.tbx_SkinName->setText("My:Skin?");
    dialog.tbx_Height->setText("1200");
    QTest::keyClick(dialog.tbx_Width, Qt::Key_Return);
    EXPECT_EQ(objSkin->SkinName, "My;Skin!");
    EXPECT_TRUE(objSkin->SkinWidth == 600 && objSkin->SkinHeight == 1200);
    EXPECT_EQ(Items(), QStringList({"Admin-Mode", "Kiosk-Mode", LayoutList::AddNewText}));
    EXPECT_FALSE(objSkin->Dirty || fs::exists(Root() / "Skins" / "My;Skin!"));
    EXPECT_TRUE(settings::NewSkinWidth.Read() == 600 && settings::NewSkinHeight.Read() == 1200);
    ExpectShown("Admin-Mode");
}

TEST_F(PanelTest, TheQuestionAtTheEnd) {
    OpenBlue();
    panel_->MoveTwips({1500, 1200, 3045, 4500});
    EXPECT_TRUE(panel_->close() && prompts_.asked.empty()) << "an unchanged skin asks nothing";
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
        {
            const FullDisk disk(row.full ? 1 : std::numeric_limits<int>::max());
            EXPECT_EQ(panel_->close(), row.outcome == Unload::Done);
        }
        EXPECT_EQ(panel_->LastUnload(), row.outcome);
        EXPECT_EQ(objSkin->Dirty, row.changed);
        EXPECT_EQ(Stored("Blue").SkinWidth, row.changed ? 700 : 999);
        EXPECT_EQ(settings::SkinProjectLeft.Read(), 1500) << "written whatever is answered";
    }
    EXPECT_EQ(settings::SkinProjectHeight.Read(), 4500);
    EXPECT_TRUE(fs::exists(Root() / "data" / "Recovered")) << "No drops, but the text is kept";
    objSkin->Dirty = true;
    panel_->StandAlone();
    EXPECT_TRUE(panel_->isVisible() && panel_->testAttribute(Qt::WA_QuitOnClose));
    Click(panel_->btn_SaveSkin);
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(PanelTest, SavingRepairsTheNameFirst) {
    OpenBlue();
    panel_->tbx_SkinName->setFocus();
    panel_->tbx_SkinName->setText("My:Skin?");
    QTest::keyClick(panel_->tbx_SkinName, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(panel_->tbx_SkinName->text(), "My;Skin!");
    EXPECT_TRUE(fs::exists(Settings("My;Skin!")) && fs::exists(Settings("Blue")));
    for (const char* name : {"   ", "**", "."}) {
        panel_->tbx_SkinName->setText(name);
        EXPECT_FALSE(panel_->SaveSkin());
        EXPECT_EQ(objSkin->SkinName, "My;Skin!");
    }
    Press(Qt::Key_F2);
    ASSERT_NE(Label(), nullptr);
    Label()->setText("Everyday");
    panel_->tbx_SkinName->setText("My;Skin!");
    EXPECT_TRUE(panel_->SaveSkin());
    EXPECT_EQ(Stored("My;Skin!").dbLayouts->Item("Standard")->LayoutName, "Everyday") << "an open label too";
    panel_->tbx_SkinName->setText("Blue");
    prompts_.answers = {Answer::No};
    EXPECT_FALSE(panel_->SaveSkin());
    EXPECT_EQ(objSkin->SkinName, "My;Skin!") << "the pictures are still found there";
}

TEST_F(PanelTest, CloningSavesOrChangesNothing) {
    OpenBlue();
    ClickItem(1);
    objCurrentLayout->dbLayoutElements->Item("Main")->LeftX = 77;
    prompts_.inputs = {"Big Party", "Big Party"};
    Click(panel_->btn_CloneLayout);
    ExpectShown("Big_Party_(cloned2)");
    objCurrentLayout->dbLayoutElements->Item("Main")->LeftX = 5;  // nothing is shared
    EXPECT_EQ(objSkin->dbLayouts->Item("Big_Party")->dbLayoutElements->Item("Main")->LeftX, 77);
    EXPECT_EQ(Stored("Blue").dbLayouts->Count(), 3) << "a clone is a save";
    objSkin->Dirty = true;
    const FullDisk full;
    for (int times = 0; times < 2; ++times) Click(panel_->btn_CloneLayout);  // at last without a name
    EXPECT_TRUE(objSkin->dbLayouts->Count() == 3 && objSkin->Dirty);
    ExpectShown("Big_Party_(cloned2)");
}

TEST(LayoutCopy, FreeNames) {
    dbSkin skin;
    for (const char* name : {"Party", "Party (cloned2)", "Odd (cloned)"}) skin.AddNewLayout(name);
    for (const auto& [given, free] :
         {std::pair{"Party", "Party (cloned3)"}, {"Party (cloned7) x", "Party (cloned3)"}, {"Ball", "Ball"}})
        EXPECT_EQ(GetFreeClonedText(skin, given), free) << given;
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
    prompts_.answers = {Answer::Yes};
    Click(panel_->btn_SaveToSkin);
    EXPECT_EQ(prompts_.asked.size(), 2u) << "one name, two pictures";
    const dbLayoutRef inserted = Stored("Green").dbLayouts->Item("Big_Party_(cloned2)");
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
    prompts_.inputs = {"Ball"};
    prompts_.files = {Settings("GreenCopy").string()};
    prompts_.answers = {Answer::No};
    Click(panel_->btn_SaveToSkin);
    EXPECT_EQ(Stored("Green").dbLayouts->Count(), 1) << "the copy's file names its original";
    EXPECT_EQ(prompts_.asked.size(), 2u);
}

}  // namespace
}  // namespace ornavo::testing
