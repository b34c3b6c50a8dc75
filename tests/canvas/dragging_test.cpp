// SPDX-License-Identifier: MIT
#include "canvas/dragging.h"

#include "canvas/read_out.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class DraggingTest : public EditingTest {
protected:
    /// One element of each family, side by side; the panel without its sample.
    void AddAll() {
        Add("Main", TypeMain, {50, 50, 100, 80});
        Add("Button1", TypeButton, {200, 50, 100, 80});
        Add("Info1", TypeInfo, {350, 50, 100, 80});
        Add("SearchBox", TypeSearchBox, {500, 50, 100, 30});
        Add("Scrollframe", TypeScrollbar, {650, 50, 40, 400});
        Compose();
        for (QWidget* sample : host().pMain.findChildren<QWidget*>()) sample->hide();
    }
    /// Straight to the control: the mouse over the window fills in what a real one may lose.
    static void Send(Control& control, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, control.mapToGlobal(at), button, held, {});
        QCoreApplication::sendEvent(&control, &event);
    }
};

TEST_F(DraggingTest, EachFamilyFollowsThePointerAndIsWrittenAtTheRelease) {
    AddAll();
    const auto* readOut = form_->findChild<ReadOut*>();
    for (const char* key : {"Main", "Button1", "Info1", "SearchBox", "Scrollframe"}) {
        dbLayoutElement& e = Element(key);
        const Rect before = Fields(e),
                   after = {before.left + 31, before.top + 113, before.width, before.height};
        const int x = before.left + 10, y = before.top + 9;
        objSkin->Dirty = false;
        Press(x, y);
        ASSERT_NE(SelControl(), nullptr) << key;
        EXPECT_EQ(SelKey(), key);
        EXPECT_FALSE(objSkin->Dirty || readOut->isVisible() || windows_.panel.shown);
        MoveTo(x + 7, y + 4);
        MoveTo(x + 31, y + 113);
        EXPECT_EQ(SelControl()->Bounds(), after);
        EXPECT_EQ(anchors().Mover.Bounds(), after);
        EXPECT_EQ(Fields(e), before) << "the model waits";
        EXPECT_TRUE(objSkin->Dirty && readOut->isVisible());
        Release(x + 31, y + 113);
        EXPECT_EQ(Fields(e), after);
        EXPECT_TRUE(windows_.panel.shown && !readOut->isVisible());
    }
    EXPECT_EQ(readOut->text(), QString::fromUtf8("681, 163   40 \u00D7 400"));
    EXPECT_EQ(windows_.panel.opened, 5);
    EXPECT_EQ(host().ScrollBar.Bounds(), (Rect{681, 178, 40, 150}));
}

TEST_F(DraggingTest, WhatTheMouseLosesIsMadeUpFor) {
    const dbLayoutElement& e = Add("Button1", TypeButton, {200, 50, 100, 80});
    Compose();
    Control& button = host().Element[1];
    Send(button, QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseButtonRelease, {40, 50}, {});
    EXPECT_EQ(Fields(e), (Rect{230, 90, 100, 80})) << "the last move";
    Send(*anchors().Anchor[4], QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton);
    Send(*anchors().Anchor[4], QEvent::MouseButtonRelease, {12, 8}, {});
    EXPECT_EQ(Fields(e), (Rect{230, 90, 110, 86}));
    Send(button, QEvent::MouseButtonPress, {10, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseMove, {20, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseMove, {50, 50}, {});
    EXPECT_FALSE(form_->parts().drag.MouseIsDown()) << "the release";
    EXPECT_EQ(Fields(e), (Rect{240, 90, 110, 86}));
    Send(button, QEvent::MouseButtonDblClick, {10, 10}, Qt::LeftButton);
    for (int i = 0; i < 2; ++i) Send(button, QEvent::MouseMove, {20, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseButtonRelease, {10, 10}, {});
    EXPECT_EQ(Fields(e), (Rect{260, 90, 110, 86})) << "the second press of a double click, and two moves";
}

TEST_F(DraggingTest, HandlesWinThePress) {
    const dbLayoutElement& e = Add("Button1", TypeButton, {200, 100, 100, 80});
    Add("Button2", TypeButton, {300, 100, 100, 100});
    Compose();
    Click(210, 110);
    Drag(anchors().Anchor[4]->geometry().center(), {-5, -3});
    EXPECT_EQ(SelKey(), "Button1") << "though it lies over the other one";
    EXPECT_EQ(Fields(e), (Rect{200, 100, 95, 77}));
}

TEST_F(DraggingTest, AnotherButtonIsASlipOfTheHandAndACompositionEndsTheDrag) {
    AddAll();
    Press(210, 60);
    MoveTo(230, 70);
    Press(230, 70, Qt::RightButton);
    Release(230, 70, Qt::RightButton);
    MoveTo(240, 80);
    Release(240, 80);
    EXPECT_EQ(Fields(Element("Button1")), (Rect{230, 70, 100, 80}));
    Press(240, 80);
    MoveTo(260, 90);
    form_->UpdateCurrentLayout();
    MoveTo(400, 300);
    Release(400, 300);
    EXPECT_EQ(Fields(Element("Button1")), (Rect{250, 80, 100, 80})) << "where it was then";
}

}  // namespace
}  // namespace ornavo::testing
