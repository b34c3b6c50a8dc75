// SPDX-License-Identifier: MIT
// An edit's three moments: in the model, waiting, drawn; what waits for nothing, and what is refused.
#include "properties/row_edit_fixture.h"

namespace ornavo::testing {
namespace {

using CommitTest = RowEditTest;

std::string Preference(const char* key) {
    return objSkin->dbSkinPrefs->Item(key)->value.ToText();
}

TEST_F(CommitTest, KeysReachTheModelAndAnEmptyBox) {
    Select("Button1");
    Type(*Box("LeftX"), "");
    EXPECT_EQ(Element("Button1").LeftX, 430);
    Press(*Box("LeftX"), Qt::Key_Tab);
    EXPECT_EQ(Box("LeftX")->Text(), "");
    Type(*Box("LeftX"), "4");
    EXPECT_EQ(Element("Button1").LeftX, 4);
    EXPECT_EQ(SelControl()->Bounds().left, 430) << "as long as the timer runs";
    Tick();
    EXPECT_EQ(SelControl()->Bounds().left, 4);
    EXPECT_EQ(anchors().Mover.Bounds(), SelControl()->Bounds());
    Paste(*Box("Caption"), "one\ntwo\r\n\tx");
    EXPECT_EQ(Element("Button1").Caption, "one two   x") << "a line of the file";
    Type(*Box("TextColor"), "");
    EXPECT_EQ(Box("TextColor")->Text(), "0");
    Type(*Box("TextColor"), "12x");
    EXPECT_EQ(Element("Button1").TextColor, 12);
    SelectSample(host().sample.but_Song);
    for (const auto& [row, afterwards] : {std::pair{std::string("SO_Height"), "0"}, {"SO_Picture", ""}}) {
        RowText& empty = *Box(row + ".Value");
        Type(empty, "");
        Press(empty, Qt::Key_Tab);
        EXPECT_EQ(empty.Text(), afterwards) << row;
        EXPECT_EQ(Preference(row.c_str()), afterwards) << row;
    }
    for (const auto& [text, left] : {std::pair{"#FF8001", "98559"}, {"#FF80", "#FF80"}}) {
        RowText& box = *Box("SO_BorderColor.Value");
        Type(box, text);
        EXPECT_EQ(box.Text(), text) << "nothing jumps under the user's hands";
        Press(box, Qt::Key_Tab);
        EXPECT_EQ(Preference("SO_BorderColor"), left);
    }
    Type(*Box("SO_Picture.Value"), "#FF8001");
    panel_->DrawPendingEdits();
    EXPECT_EQ(Preference("SO_Picture"), "#FF8001") << "no colour";
}

TEST_F(CommitTest, TypesThatCannotBe) {
    for (const auto& [key, type] :
         {std::pair{"Button1", TypeScrollbar}, {"Main", TypeButton}, {"Scrollbar", TypeInfo}}) {
        Select(key);
        const int before = Element(key).ElementType;
        Combo("ElementType")->setCurrentIndex(type);
        EXPECT_EQ(Combo("ElementType")->ListIndex(), before) << key;
        EXPECT_EQ(Element(key).ElementType, before) << key;
        EXPECT_FALSE(timer().isActive()) << key;
    }
    Select("Button1");
    EXPECT_TRUE(Combo("ActionType"));
    Press(*Combo("ElementType"), Qt::Key_Down);
    EXPECT_TRUE(!Combo("ActionType") && Check("Dragger") && SelKey() == "Button1");
    EXPECT_EQ(panel_->focusWidget(), Combo("ElementType"));
}

TEST_F(CommitTest, TheListOfElementsLeadsToOne) {
    Select("Button1");
    Type(*Box("LeftX"), "450");
    Element("Info1").Visible = false;
    Compose();
    Combo("ShowElement")->setCurrentIndex(TypeInfo);
    EXPECT_EQ(SelKey(), "Info1");
    EXPECT_TRUE(anchors().Anchor[0]->isHidden());
    EXPECT_EQ(ControlOf(Element("Button1")).Bounds().left, 450);
    Press(*Check("Visible"), Qt::Key_Space);
    Tick();
    EXPECT_FALSE(SelControl()->isHidden());
}

TEST_F(CommitTest, WhatHasNoControlOfItsOwnIsDrawnToo) {
    Control skin(nullptr, "btn_SkinProperties");
    viewSwitches.ShowShape = viewSwitches.ShowGrid = false;
    SelectSample(skin);
    Type(*Box("SP_BackgroundPicture.Value"), "new.bmp");
    Tick();
    EXPECT_EQ(Canvas({9, 9, 1, 1}).pixelColor(0, 0), QColor(Qt::darkRed));
    Element("Main").HeightY = 200;
    Compose();
    SelectSample(host().sample.but_Info);
    const int width = host().sample.but_Song.Bounds().width;
    Type(*Box("IN_Margin.Value"), "31");
    Tick();
    EXPECT_EQ(host().sample.but_Song.Bounds().width, width - 30);
    form_->selection().Clear();
}

TEST_F(CommitTest, ThePanelStaysUnderTheUsersHands) {
    Select("Info1");
    for (const auto& [width, isHidden] : {std::pair{"0", true}, {"60", false}}) {
        Type(*Box("WidthX"), width);
        Tick();
        EXPECT_EQ(SelControl()->isHidden(), isHidden);
        EXPECT_TRUE(panel_->isVisible());
    }
    EXPECT_EQ(SelControl()->Bounds().width, 60);
    EXPECT_FALSE(form_->selection().KeepsPropertiesOpen());
}

TEST_F(CommitTest, AnotherCommandFinishesWhatWaits) {
    const std::pair<const char*, std::function<void()>> commands[] = {
        {"nothing is selected", [&] { form_->ResetSelection(); }},
        {"another one is", [&] { Select("Picture1"); }},
        {"the preview", [&] { form_->BeginPreview(); }},
        {"the panel closes", [&] { panel_->close(); }},
    };
    int left = 431;
    for (const auto& [what, command] : commands) {
        Select("Button1");
        Type(*Box("LeftX"), std::to_string(++left));
        objSkin->Dirty = false;
        command();
        EXPECT_EQ(ControlOf(Element("Button1")).Bounds().left, left) << what;
        EXPECT_TRUE(objSkin->Dirty && !timer().isActive()) << what;
    }
    const dbPointRef corner = objCurrentLayout->dbPoints->Item(1);
    Select(form_->parts().points.cPointMover[1]);
    Type(*Box("X"), "9");
    objSkin->Dirty = false;
    objCurrentLayout = objSkin->AddNewLayout("Party");
    form_->ResetSelection();
    form_->UpdateCurrentLayout();
    EXPECT_EQ(corner->X, 9);
    EXPECT_TRUE(objSkin->Dirty && !timer().isActive() && !panel_->isVisible() && !SelControl());
}

TEST_F(CommitTest, AnEditedKeyColourStandsAndWhatAnInfoWritesBack) {
    objSkin->dbSkinPrefs->Item("SO_UseTopLeftTransparency")->value = false;
    SelectSample(host().sample.but_Song);
    Type(*Box("SO_TransparentColor.Value"), "4711");
    Tick();
    EXPECT_EQ(Preference("SO_TransparentColor"), "4711");
    EXPECT_EQ(host().sample.but_Song.TransparentColor(), 4711);
    Select("Button1");
    Press(*Check("UseTopLeftTransparency"), Qt::Key_Space);
    Tick();
    EXPECT_EQ(Element("Button1").TransparentColor, 0x008000);  // that of the picture's corner
    Select("Info1");
    Type(*Box("CapScrollSpeed"), "-3");
    Tick();
    EXPECT_EQ(Element("Info1").CapScrollSpeed, 3);
}

TEST_F(CommitTest, Choosing) {
    Select("Button1");
    const auto click = [&](const char* key) { QTest::mouseClick(Box(key)->button, Qt::LeftButton); };
    for (const char* key : {"TextColor", "Font", "PicOver"}) click(key);  // all cancelled
    EXPECT_FALSE(timer().isActive());
    prompts_.colours = {0x123456};
    click("TextColor");
    EXPECT_EQ(Element("Button1").TextColor, 0x123456);
    Element("Button1").Font = std::make_shared<Font>();
    prompts_.fonts = {Font{.Name = "Arial", .Size = 20}};
    click("Font");
    EXPECT_EQ(Element("Button1").Font->Size, 20);
    prompts_.files = {Path("new.bmp").toStdString(), "/elsewhere/new.bmp"};
    for (const char* chosen : {"new.bmp", "/elsewhere/new.bmp"}) {
        click("PicOver");
        EXPECT_EQ(Element("Button1").PicOver, chosen);
    }
}

}  // namespace
}  // namespace ornavo::testing
