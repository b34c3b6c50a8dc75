// SPDX-License-Identifier: MIT
#include "canvas/keys.h"

#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class KeysTest : public EditingTest {
protected:
    void AddThree() {
        for (const int i : {1, 2, 3})
            Add(("Button" + std::to_string(i)).c_str(), TypeButton, {60 * i, 200, 50, 40});
        Compose();
    }
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
    const dbLayoutElement& e = Element("Button2");
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, Rect> rows[] = {
        {Qt::Key_Up, {}, {120, 199, 50, 40}},
        {Qt::Key_Down, Qt::ControlModifier, {120, 199, 50, 50}},
        {Qt::Key_Right, {}, {121, 199, 50, 50}},
        {Qt::Key_Left, Qt::ShiftModifier | Qt::AltModifier, {121, 199, 49, 50}}};
    for (const auto& [key, modifiers, bounds] : rows) {
        objSkin->Dirty = false;
        Key(key, modifiers);
        EXPECT_EQ(Fields(e), bounds) << key;
        EXPECT_EQ(anchors().Mover.Bounds(), bounds);
        EXPECT_TRUE(objSkin->Dirty);
    }
    EXPECT_EQ(windows_.panel.sheets, 0);
    Fire(form_->tmrShowProperties);
    EXPECT_EQ(windows_.panel.sheets, 1);
}

TEST_F(KeysTest, ShortcutsOfTheProgram) {
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    AddThree();
    Select("Button1");
    const Qt::KeyboardModifiers with[] = {Qt::ControlModifier, {}, Qt::ControlModifier | Qt::ShiftModifier};
    for (const auto& modifiers : with) Key(Qt::Key_S, modifiers);
    EXPECT_EQ(windows_.saved, 1);
    Press(63, 203);
    MoveTo(83, 203);
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Element("Button1").LeftX, 80) << "a save takes an unfinished drag along";
    Release(83, 203);
    Key(Qt::Key_F5);
    Key(Qt::Key_F5, Qt::ShiftModifier);
    objCurrentLayout = std::make_shared<dbLayout>();
    Key(Qt::Key_F5);
    EXPECT_EQ(windows_.previews, 2) << "of a layout alone";
}

TEST_F(KeysTest, DeleteTakesTheElementThatIsShownAndNothingElse) {
    AddThree();
    Key(Qt::Key_Delete);
    Select("Button2");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button3");
    EXPECT_EQ(Element("Button3").Order, 2);
    EXPECT_TRUE(!SelControl() && SelKey() == "Button2");
    EXPECT_TRUE(objSkin->Dirty && form_->tmrShowProperties.isActive());
    EXPECT_FALSE(anchors().Anchor[0]->isVisible() || windows_.panel.shown);
    EXPECT_EQ(host().GetFreeElement(), 2);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Left}) Key(key);
    Select("Button3");
    viewSwitches.ShowElements = false;
    Compose();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Keys(), "Button1 Button3") << "what is hidden can't be deleted either";
}

TEST_F(KeysTest, TabStepsThroughWhatIsShownAndWritesNothing) {
    Add("Main", TypeMain, {50, 50, 100, 80});
    Add("Button1", TypeButton, {200, 50, 60, 40});
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
}

TEST_F(KeysTest, ACornerIsNudgedBlinksAndIsDeleted) {
    for (const Point at : {Point{100, 300}, {200, 500}, {300, 300}}) AddPoint(at);
    Compose();
    Click(100, 300);
    ASSERT_EQ(SelKey(), "K1");
    for (const Colour colour : {PointBlinkColor, PointColor, PointBlinkColor}) {
        EXPECT_EQ(SelControl()->BackColor(), colour);
        Fire(form_->tmrSelector);
    }
    for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        Key(Qt::Key_Right, modifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 131);
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(objCurrentLayout->dbPoints->Item(1)->X, 0);
    EXPECT_EQ(SelControl()->Bounds().left, -2);
    Key(Qt::Key_Delete);
    EXPECT_EQ(objCurrentLayout->dbPoints->Count(), 2);
    EXPECT_EQ(SelControl(), nullptr);
}

}  // namespace
}  // namespace ornavo::testing
