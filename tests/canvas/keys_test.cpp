// SPDX-License-Identifier: MIT
#include "canvas/keys.h"

#include <QAccessible>

#include "canvas/anchors.h"
#include "canvas/shape_points.h"
#include "document/codes.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class KeysTest : public EditingTest {
protected:
    void AddThree() {
        for (const char* key : {"Button1", "Button2", "Button3"})
            Add(key, TypeButton, {60 * Count(), 200, 50, 40});
        Compose();
    }
    static int Count() { return objCurrentLayout->dbLayoutElements->Count() + 1; }
    void Select(const char* key) {
        const Rect at = Fields(Element(key));
        Click(at.left + 3, at.top + 3);
        ASSERT_EQ(SelKey(), key);
        objSkin->Dirty = false;
        windows_.panel.sheets = 0;
    }
};

TEST_F(KeysTest, EachArrowIsWrittenAtOnceAndTheSheetFollowsTheLast) {
    AddThree();
    Select("Button2");
    Key(Qt::Key_Right);
    EXPECT_EQ(Fields(Element("Button2")), (Rect{121, 200, 50, 40}));
    Key(Qt::Key_Up);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(Fields(Element("Button2")), (Rect{121, 199, 51, 50}));
    EXPECT_EQ(anchors().Mover.Bounds(), SelControl()->Bounds());
    EXPECT_TRUE(objSkin->Dirty);
    EXPECT_EQ(windows_.panel.sheets, 0);
    Fire(form_->tmrShowProperties);
    EXPECT_EQ(windows_.panel.sheets, 1);
    EXPECT_FALSE(form_->tmrShowProperties.isActive());
    objSkin->Dirty = false;
    Key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Fields(Element("Button2")), (Rect{121, 199, 51, 50}));
    EXPECT_TRUE(objSkin->Dirty);
    Key(Qt::Key_Left, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Element("Button2").WidthX, 41);
}

TEST_F(KeysTest, ShortcutsOfTheProgram) {
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    AddThree();
    Select("Button1");
    Key(Qt::Key_S, Qt::ControlModifier);
    Key(Qt::Key_S);
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(windows_.saved, 1);
    EXPECT_EQ(SelKey(), "Button1");
    const int left = Element("Button1").LeftX;
    Press(left + 3, 203);
    MoveTo(left + 23, 203);
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Element("Button1").LeftX, left + 20) << "a save takes an unfinished drag along";
    form_->hide();
    windows_.panel.opened = 0;
    Release(left + 23, 203);
    EXPECT_EQ(windows_.panel.opened, 0) << "the preview is there when the button is let go";
    form_->show();
    Key(Qt::Key_F5);
    Key(Qt::Key_F5, Qt::ShiftModifier);
    EXPECT_EQ(windows_.previews, 2);
    objCurrentLayout = std::make_shared<dbLayout>();
    Key(Qt::Key_F5);
    EXPECT_EQ(windows_.previews, 2);
}

TEST_F(KeysTest, DeleteTakesTheElementAndItsSlotAndNothingElse) {
    AddThree();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button2 Button3");
    EXPECT_FALSE(objSkin->Dirty);
    Select("Button2");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button3");
    EXPECT_EQ(Element("Button3").Order, 2);
    EXPECT_TRUE(!SelControl() && SelKey() == "Button2");
    EXPECT_TRUE(objSkin->Dirty && form_->tmrShowProperties.isActive());
    EXPECT_FALSE(anchors().Anchor[0]->isVisible() || windows_.panel.shown);
    EXPECT_EQ(host().GetFreeElement(), 2);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Left}) Key(key);
    EXPECT_EQ(Keys(), "Button1 Button3");
}

TEST_F(KeysTest, WhatIsNotComposedAgainIsSelectedNoMore) {
    AddThree();
    Select("Button1");
    Element("Button1").WidthX = 0;
    SelControl()->Move({60, 200, 0, 40});
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Element("Button1").WidthX, 0);
    Compose();
    EXPECT_EQ(SelControl(), nullptr);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button2 Button3");
    Select("Button3");
    viewSwitches.ShowElements = false;
    Compose();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button2 Button3") << "what is hidden can't be deleted either";
}

TEST_F(KeysTest, TabStepsThroughWhatIsShownAndWritesNothing) {
    Add("Main", TypeMain, {50, 50, 100, 80});
    Add("Button1", TypeButton, {200, 50, 60, 40}).ElementName = "Play";
    Add("Button2", TypeButton, {300, 50, 60, 40}).Visible = false;
    Add("SearchBox", TypeSearchBox, {400, 50, 60, 30});
    Add("Scrollbar", TypeScrollbar, {500, 50, 30, 400});
    Compose();
    windows_.panel.shown = true;
    std::string way;
    for (int i = 0; i < 5; ++i) {
        Key(Qt::Key_Tab);
        way += SelKey() + ' ';
    }
    for (int i = 0; i < 4; ++i) Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(way + SelKey(), "Main Button1 SearchBox Scrollbar Main Main");
    EXPECT_TRUE(anchors().Anchor[0]->isVisible() && windows_.panel.shown);
    EXPECT_FALSE(objSkin->Dirty);
    EXPECT_TRUE(form_->tmrShowProperties.isActive()) << "the sheet follows the last key";
    EXPECT_EQ(windows_.panel.opened + windows_.panel.sheets, 0);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&host().Element[1]);
    EXPECT_EQ(told->text(QAccessible::Name), "Play");
    EXPECT_EQ(told->role(), QAccessible::Button);
    EXPECT_EQ(told->text(QAccessible::Description), QString::fromUtf8("200, 50   60 \u00D7 40"));
}

TEST_F(KeysTest, AnotherLayoutLeavesNoSelection) {
    Add("Main", TypeMain, {50, 50, 100, 80});
    Compose();
    BarePanel();
    Select("Main");
    Key(Qt::Key_Right);
    Press(60, 60);
    objCurrentLayout = std::make_shared<dbLayout>();
    objCurrentLayout->Key = "Other";
    Add("Main", TypeMain, {50, 50, 100, 80});
    Compose();
    EXPECT_EQ(SelControl(), nullptr);
    EXPECT_EQ(SelKey(), "");
    EXPECT_FALSE(form_->tmrShowProperties.isActive() || form_->parts().drag.MouseIsDown() ||
                 anchors().Anchor[0]->isVisible() || windows_.panel.shown);
}

TEST_F(KeysTest, ACornerIsNudgedBlinksAndIsDeleted) {
    for (const Point at : {Point{100, 300}, {200, 500}, {300, 300}}) AddPoint(at);
    Compose();
    Click(100, 300);
    ASSERT_EQ(SelKey(), "K1");
    EXPECT_EQ(SelControl()->BackColor(), PointBlinkColor);
    Fire(form_->tmrSelector);
    EXPECT_EQ(SelControl()->BackColor(), PointColor);
    Fire(form_->tmrSelector);
    EXPECT_EQ(SelControl()->BackColor(), PointBlinkColor);
    Key(Qt::Key_Right);
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        Key(Qt::Key_Right, modifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 131);
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 0);
    EXPECT_EQ(SelControl()->Bounds().left, -2);
    Key(Qt::Key_Delete);
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 2);
    EXPECT_EQ(SelControl(), nullptr);
    EXPECT_EQ(form_->parts().points.cPointMover[1].BackColor(), PointColor);
}

}  // namespace
}  // namespace ornavo::testing
