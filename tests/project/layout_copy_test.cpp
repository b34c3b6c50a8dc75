// SPDX-License-Identifier: MIT
#include "project/layout_copy.h"

#include "support/panel_fixture.h"

namespace ornavo::testing {
namespace {

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
    EXPECT_EQ(Stored("Blue").dbLayouts->Count(), 4) << "a clone is a save";
    Click(panel_->btn_CloneLayout);
    EXPECT_EQ(objSkin->dbLayouts->Count(), 4) << "no name, no layout";
}

TEST_F(PanelTest, ACloneThatCannotBeSavedChangesNothing) {
    OpenBlue();
    objSkin->Dirty = true;
    const dbLayoutRef before = objCurrentLayout;
    prompts_.inputs = {"Other"};
    const FullDisk full;
    Click(panel_->btn_CloneLayout);
    EXPECT_EQ(objSkin->dbLayouts->Count(), 2);
    EXPECT_TRUE(objCurrentLayout == before && objSkin->Dirty);
    EXPECT_NE(prompts_.asked.back().find("No space left on device"), std::string::npos);
    ExpectShown("Standard");
}

TEST(LayoutCopy, FreeNames) {
    dbSkin skin;
    for (const char* name : {"Party", "Party (cloned2)", "Odd (cloned)"}) skin.AddNewLayout(name);
    for (const auto& [given, free] : {std::pair{"Ball", "Ball"},
                                      {"Party", "Party (cloned3)"},
                                      {"Party (cloned7) x", "Party (cloned3)"},
                                      {"Odd (cloned)", "Odd (cloned2)"}})
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
    ASSERT_EQ(prompts_.asked.size(), 2u) << "one name, two pictures";
    EXPECT_NE(prompts_.asked[1].find((blue / "b.bmp").string() + " gives way"), std::string::npos);
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
    EXPECT_TRUE(windows_.panel.shown && canvas_.selection().SelControl() == panel_->btn_SkinProperties);
    EXPECT_EQ(canvas_.reset, resets + 1);
    EXPECT_EQ(canvas_.selection().SelKey(), "");
}

}  // namespace
}  // namespace ornavo::testing
