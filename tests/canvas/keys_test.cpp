// SPDX-License-Identifier: MIT
#include "canvas/keys.h"

#include "canvas/anchors.h"
#include "canvas/element_menu.h"
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
    dbLayoutElement& Element(const char* key) { return *objCurrentLayout->dbLayoutElements->Item(key); }
    void Select(const char* key) {
        const Rect at = Fields(Element(key));
        Click(at.left + 3, at.top + 3);
        ASSERT_EQ(SelKey, key);
        objSkin->Dirty = false;
        windows_.panel.sheets = 0;
    }
    void AddCorners(int count) {
        for (int i = 1; i <= count; ++i) {
            const dbPointRef point = objCurrentLayout->dbPoints->Add(i);
            point->X = i * 100;
            point->Y = i % 2 ? 300 : 500;
        }
        Compose();
    }
    PictureBox& CornerControl(int slot) { return form_->parts().points.cPointMover[slot]; }
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
    EXPECT_EQ(anchors().Mover.Bounds(), SelControl->Bounds());
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
    objCurrentLayout->dbLayoutElements = std::make_shared<dbLayoutElements>();
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    AddThree();
    Select("Button1");
    Key(Qt::Key_S, Qt::ControlModifier);
    Key(Qt::Key_S);
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(windows_.saved, 1);
    EXPECT_EQ(SelKey, "Button1");
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
    EXPECT_EQ(SelControl, nullptr);
    EXPECT_TRUE(objSkin->Dirty && form_->tmrShowProperties.isActive());
    EXPECT_FALSE(anchors().Anchor[0]->isVisible() || windows_.panel.shown);
    EXPECT_EQ(host().GetFreeElement(), 2);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Left}) Key(key);
    EXPECT_EQ(Keys(), "Button1 Button3");
}

TEST_F(KeysTest, StandardElementsStayAndOnlyTheCaptionTells) {
    Add("Main", TypeMain, {50, 50, 100, 80});
    Compose();
    Select("Main");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Main");
    EXPECT_EQ(SelKey, "Main");
    EXPECT_TRUE(form_->windowTitle().contains('*'));
}

TEST_F(KeysTest, AnElementWithoutWidthTakesKeysAndIsLostWithTheNextComposition) {
    AddThree();
    Select("Button1");
    Element("Button1").WidthX = 0;
    SelControl->Move({60, 200, 0, 40});
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Element("Button1").WidthX, 0);
    Compose();
    EXPECT_EQ(SelControl, nullptr);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button2 Button3");
}

TEST_F(KeysTest, AfterAnyCompositionTheSelectionIsItsKeys) {
    AddThree();
    for (const int item : {MenuSendToBack, MenuBringToFront, MenuSendToBack}) {
        Select("Button2");
        const Rect handle = anchors().Anchor[0]->Bounds();
        mnuElementSub_Click(form_->parts(), item);
        EXPECT_EQ(SelControl->Tag, "Button2");
        EXPECT_EQ(anchors().Anchor[0]->Bounds(), handle);
        EXPECT_FALSE(objSkin->Dirty);
        EXPECT_EQ(Keys(), item == MenuSendToBack ? "Button2 Button1 Button3" : "Button1 Button3 Button2");
    }
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button3");
    Select("Button3");
    viewSwitches.ShowElements = false;
    Compose();
    EXPECT_EQ(SelControl, nullptr);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button3");
}

TEST_F(KeysTest, AnotherLayoutLeavesNoSelection) {
    Add("Main", TypeMain, {50, 50, 100, 80});
    Compose();
    Select("Main");
    Key(Qt::Key_Right);
    Press(60, 60);
    objCurrentLayout = std::make_shared<dbLayout>();
    objCurrentLayout->Key = "Other";
    Add("Main", TypeMain, {50, 50, 100, 80});
    Compose();
    EXPECT_EQ(SelControl, nullptr);
    EXPECT_EQ(SelKey, "");
    EXPECT_FALSE(form_->tmrShowProperties.isActive() || form_->parts().drag.MouseIsDown ||
                 anchors().Anchor[0]->isVisible() || windows_.panel.shown);
}

TEST_F(KeysTest, ACornerIsNudgedBlinksAndIsDeleted) {
    AddCorners(4);
    Press(100, 300);
    Release(100, 300);
    ASSERT_EQ(SelKey, "K1");
    EXPECT_EQ(SelControl->BackColor(), PointBlinkColor);
    Fire(form_->tmrSelector);
    EXPECT_EQ(SelControl->BackColor(), PointColor);
    Fire(form_->tmrSelector);
    EXPECT_EQ(SelControl->BackColor(), PointBlinkColor);
    Key(Qt::Key_Right);
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        Key(Qt::Key_Right, modifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 131);
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 0);
    EXPECT_EQ(SelControl->Bounds().left, -2);
    Key(Qt::Key_Delete);
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 3);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 200);
    EXPECT_EQ(SelControl, nullptr);
    EXPECT_EQ(CornerControl(1).BackColor(), PointColor);
}

TEST_F(KeysTest, APressOnTheBareCanvasOverASideInsertsACornerOnce) {
    AddCorners(2);
    Press(150, 400);
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 3);
    Release(150, 400);
    MoveTo(150, 350);
    EXPECT_EQ(form_->cursor().shape(), Qt::CrossCursor);
    MoveTo(600, 100);
    EXPECT_EQ(form_->cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace ornavo::testing
