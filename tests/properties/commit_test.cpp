// SPDX-License-Identifier: MIT
// An edit's three moments: in the model, waiting, drawn; what waits for nothing, and what is refused.
#include "properties/row_edit_fixture.h"

namespace ornavo::testing {
namespace {

class CommitTest : public RowEditTest {
protected:
    void SelectSong() { SelectSample(host().sample.but_Song); }
    static std::string Preference(const char* key) { return objSkin->dbSkinPrefs->Item(key)->value.ToText(); }
};

/// Counts how often the control is put elsewhere.
class Moves : public QObject {
public:
    explicit Moves(Control& control) { control.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Move;
        return false;
    }
    int count = 0;
};

TEST_F(CommitTest, EachKeyReachesTheModelAndTheLastOneTheCanvas) {
    Select("Button1");
    RowText& box = *Box("LeftX");
    Moves moves(*SelControl());
    Type(box, "4");
    for (int i = 0; i < 200; ++i) {
        Press(box, i % 2 ? Qt::Key_Backspace : Qt::Key_5);
        ASSERT_EQ(Element("Button1").LeftX, i % 2 ? 4 : 45);
    }
    EXPECT_EQ(moves.count, 0);
    EXPECT_FALSE(objSkin->Dirty);
    Tick();
    EXPECT_EQ(moves.count, 1);
    EXPECT_EQ(SelControl()->Bounds().left, 4);
    EXPECT_EQ(form_->parts().anchors.Mover.Bounds(), SelControl()->Bounds());
    EXPECT_TRUE(objSkin->Dirty);
    Press(box, Qt::Key_Return);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(CommitTest, EmptyBoxes) {
    Select("Button1");
    Type(*Box("LeftX"), "");
    EXPECT_EQ(Element("Button1").LeftX, 430);
    Press(*Box("LeftX"), Qt::Key_Tab);
    EXPECT_EQ(Box("LeftX")->Text(), "");

    Type(*Box("TextColor"), "");
    EXPECT_EQ(Box("TextColor")->Text(), "0");
    EXPECT_EQ(Box("TextColor")->BackColor(), 0);
    Type(*Box("TextColor"), "12x");
    EXPECT_EQ(Box("TextColor")->BackColor(), 12);
    EXPECT_EQ(Element("Button1").TextColor, 12);

    SelectSong();
    for (const auto& [row, afterwards] :
         std::map<std::string, const char*>{{"SO_Height", "0"}, {"SO_Picture", ""}, {"SO_Rotation", "0"}}) {
        RowText* box = Box(row + ".Value");
        ASSERT_NE(box, nullptr) << row;
        Type(*box, "");
        Press(*box, Qt::Key_Tab);
        EXPECT_EQ(box->Text(), afterwards) << row;
        EXPECT_EQ(Preference(row.c_str()), afterwards) << row;
    }
}

TEST_F(CommitTest, TypesThatCannotBe) {
    const std::pair<const char*, int> refused[] = {{"Button1", TypeScrollbar},
                                                   {"Main", TypeButton},
                                                   {"SearchBox", TypeMain},
                                                   {"Scrollbar", TypeInfo},
                                                   {"Info1", TypeSearchBox}};
    for (const auto& [key, type] : refused) {
        Select(key);
        const int before = Element(key).ElementType;
        Combo("ElementType")->setCurrentIndex(type);
        EXPECT_EQ(Combo("ElementType")->ListIndex(), before) << key;
        EXPECT_EQ(Element(key).ElementType, before) << key;
        EXPECT_FALSE(timer().isActive()) << key;
    }
    EXPECT_TRUE(prompts_.asked.empty());

    Select("Button1");
    EXPECT_NE(Combo("ActionType"), nullptr);
    Press(*Combo("ElementType"), Qt::Key_Down);
    EXPECT_EQ(Combo("ActionType"), nullptr);
    EXPECT_NE(Check("Dragger"), nullptr);
    EXPECT_EQ(SelKey(), "Button1");
    EXPECT_TRUE(panel_->focusWidget() == Combo("ElementType"));
}

TEST_F(CommitTest, TheListOfElementsLeadsToOne) {
    Select("Button1");
    Type(*Box("LeftX"), "450");
    Element("Info1").Visible = false;
    Compose();
    Combo("ShowElement")->setCurrentIndex(TypeInfo);
    EXPECT_EQ(SelKey(), "Info1");
    EXPECT_TRUE(anchors().Anchor[0]->isHidden());
    EXPECT_NE(Box("CapScrollSpeed"), nullptr);
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
    Select("Button1");
    Type(*Box("ElementName"), "Play");
    EXPECT_EQ(Combo("ShowElement")->currentText(), "Play");
    form_->selection().Clear();
}

TEST_F(CommitTest, ThePanelStaysUnderTheUsersHands) {
    Select("Info1");
    Press(*Check("Visible"), Qt::Key_Space);
    Tick();
    EXPECT_TRUE(SelControl()->isHidden());
    EXPECT_TRUE(panel_->isVisible());
    Press(*Check("Visible"), Qt::Key_Space);
    Type(*Box("WidthX"), "0");
    Tick();
    EXPECT_TRUE(SelControl()->isHidden());
    EXPECT_TRUE(panel_->isVisible());
    Type(*Box("WidthX"), "60");
    Tick();
    EXPECT_FALSE(SelControl()->isHidden());
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
        EXPECT_FALSE(timer().isActive()) << what;
        EXPECT_TRUE(objSkin->Dirty) << what;
    }
}

TEST_F(CommitTest, AnotherLayoutLeavesNothingWaiting) {
    const dbPointRef corner = objCurrentLayout->dbPoints->Item(1);
    Select(form_->parts().points.cPointMover[1]);
    Type(*Box("X"), "9");
    objSkin->Dirty = false;
    objCurrentLayout = objSkin->AddNewLayout("Party");
    form_->ResetSelection();
    form_->UpdateCurrentLayout();
    EXPECT_EQ(corner->X, 9);
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_FALSE(timer().isActive());
    EXPECT_FALSE(panel_->isVisible());
    EXPECT_EQ(SelControl(), nullptr);
}

TEST_F(CommitTest, AnEditedKeyColourStands) {
    objSkin->dbSkinPrefs->Item("SO_UseTopLeftTransparency")->value = false;
    SelectSong();
    Type(*Box("SO_TransparentColor.Value"), "4711");
    Tick();
    EXPECT_EQ(Preference("SO_TransparentColor"), "4711");
    EXPECT_EQ(host().sample.but_Song.TransparentColor(), 4711);
    Select("Button1");
    Type(*Box("TransparentColor"), "815");
    Tick();
    EXPECT_EQ(Element("Button1").TransparentColor, 815);
    Press(*Check("UseTopLeftTransparency"), Qt::Key_Space);
    Tick();
    EXPECT_EQ(Element("Button1").TransparentColor, 0x008000);  // that of the picture's corner
}

TEST_F(CommitTest, WriteBacksOfAnInfo) {
    Select("Info1");
    Element("Info1").Font = nullptr;
    Type(*Box("CapScrollSpeed"), "-3");
    EXPECT_EQ(Element("Info1").CapScrollSpeed, -3);
    Tick();
    EXPECT_EQ(Element("Info1").CapScrollSpeed, 3);
    ASSERT_NE(Element("Info1").Font, nullptr);
    Combo("InfoType")->setCurrentIndex(5);
    Press(*Check("Value"), Qt::Key_Space);
    EXPECT_EQ(Element("Info1").Value, -1);
}

TEST_F(CommitTest, Choosing) {
    Select("Button1");
    const auto click = [&](const char* key) { QTest::mouseClick(Box(key)->button, Qt::LeftButton); };
    for (const char* key : {"TextColor", "Font", "PicOver"}) click(key);  // all cancelled
    EXPECT_FALSE(timer().isActive());
    EXPECT_EQ(prompts_.questions.at(0).title, "Open Picture");

    prompts_.colours = {0x123456};
    click("TextColor");
    EXPECT_EQ(Box("TextColor")->BackColor(), 0x123456);
    EXPECT_EQ(Element("Button1").TextColor, 0x123456);
    Element("Button1").Font = Element("Picture1").Font = std::make_shared<Font>();
    prompts_.fonts = {Font{.Name = "Arial", .Size = 20}};
    click("Font");
    EXPECT_EQ(Element("Button1").Font->Size, 20);
    EXPECT_EQ(Element("Picture1").Font->Size, 20) << "a clone has the same font";
    prompts_.files = {Path("new.bmp").toStdString()};
    click("PicOver");
    EXPECT_EQ(Element("Button1").PicOver, "new.bmp");
    prompts_.files = {"/elsewhere/new.bmp"};
    click("PicOver");
    EXPECT_EQ(Element("Button1").PicOver, "/elsewhere/new.bmp");
    click("PicOver");
    EXPECT_EQ(prompts_.questions.front().folder, objSkin->SkinFolder());
    EXPECT_EQ(prompts_.questions.back().folder, "/elsewhere/") << "where the last picture was found";
    EXPECT_TRUE(prompts_.questions.back().filter.ends_with("|PNG (*.png)|*.png"));
    EXPECT_NE(prompts_.questions.back().filter.find("*.gif;*.png|JPEG"), std::string::npos);
}

TEST_F(CommitTest, AColourAsPagesHaveItBecomesItsNumberWhenTheBoxIsLeft) {
    SelectSong();
    const std::pair<const char*, const char*> typed[] = {
        {"#FF8001", "98559"}, {"#ff8001", "98559"}, {"#FF80", "#FF80"}, {"#GG8001", "#GG8001"}};
    for (const auto& [text, left] : typed) {
        Type(*Box("SO_BorderColor.Value"), text);
        EXPECT_EQ(Box("SO_BorderColor.Value")->Text(), text) << "nothing jumps under the user's hands";
        Press(*Box("SO_BorderColor.Value"), Qt::Key_Tab);
        EXPECT_EQ(Box("SO_BorderColor.Value")->Text(), left);
        EXPECT_EQ(Preference("SO_BorderColor"), left);
    }
    Type(*Box("SO_Picture.Value"), "#FF8001");
    panel_->DrawPendingEdits();
    EXPECT_EQ(Preference("SO_Picture"), "#FF8001") << "no colour";
}

// What a row can't hold leaves the model as it was, and no value keeps the file from being read again.
TEST_F(CommitTest, Garbage) {
    QFile huge(Path("huge.bmp"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly));
    const auto little = [](std::uint32_t number) {
        return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
    };
    huge.write("BM" + little(54) + little(0) + little(54) + little(40) + little(20000) + little(20000) +
               little(1 | 24 << 16) + QByteArray(24, 0));
    huge.close();
    const struct {
        std::string text;
        bool
            isKept;  // in the file, which has one letter for each byte and no text that is too large a number
    } garbage[] = {{"12ab", true},
                   {"one\ntwo\r\n\tx", true},
                   {"absent.png", true},
                   {"huge.bmp", true},
                   {"<&>\"]]>", true},
                   {"\xF0\x9F\x8E\xB5 caf\xC3\xA9", false},
                   {std::string(300, '9'), false}};
    Control skin(nullptr, "btn_SkinProperties");
    const std::function<void()> selections[] = {[&] { Select("Button1"); },
                                                [&] { Select("Info1"); },
                                                [&] { Select("Main"); },
                                                [&] { Select("Scrollbar"); },
                                                [&] { SelectSample(skin); },
                                                [&] { SelectSong(); },
                                                [&] { SelectSample(host().sample.KeyE); },
                                                [&] { SelectSample(host().sample.lbl_SL[1]); },
                                                [&] { Select(form_->parts().points.cPointMover[1]); }};
    for (const auto& [text, isKept] : garbage) {
        for (const auto& select : selections) {
            select();
            Pool<RowText>& boxes = panel_->parts().pools.tbx_Prop;
            for (int i = 1; i <= boxes.Top(); ++i) {
                const std::string key = boxes[i].Tag;
                if (key.empty() || boxes[i].Locked()) continue;
                const Value before = GetRowValue(panel_->parts().BoundObject, key);
                Paste(boxes[i], text);
                if (timer().isActive()) Tick();
                const Value after = GetRowValue(panel_->parts().BoundObject, key);
                const bool holdsAnything = before.Is<std::string>() || !GetClass(key).empty();
                const std::string expected = holdsAnything ? boxes[i].Text() : before.ToText();
                // A real number may be as long.
                if (holdsAnything || text.size() < 300) {
                    EXPECT_EQ(after.ToText(), expected) << key << text;
                }
            }
        }
        objSkin->SaveSkin(false);
        const std::set<std::string> lost = Differences(SnapshotOf(*objSkin), SnapshotOf(Stored()));
        if (isKept) {
            EXPECT_EQ(lost, std::set<std::string>()) << text;
        }
        EXPECT_EQ(Stored().dbLayouts->Item(1)->dbLayoutElements->Count(), TypeScrollbar + 1) << text;
    }
    EXPECT_TRUE(panel_->isVisible());
}

}  // namespace
}  // namespace ornavo::testing
