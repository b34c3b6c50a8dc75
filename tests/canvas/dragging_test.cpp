// SPDX-License-Identifier: MIT
#include "canvas/dragging.h"

#include <QMenu>

#include "canvas/anchors.h"
#include "canvas/read_out.h"
#include "document/codes.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class DraggingTest : public EditingTest {
protected:
    /// One element of each family, side by side.
    void AddAll() {
        Add("Main", TypeMain, {50, 50, 100, 80});
        Add("Button1", TypeButton, {200, 50, 100, 80});
        Add("Info1", TypeInfo, {350, 50, 100, 80});
        Add("SearchBox", TypeSearchBox, {500, 50, 100, 30});
        Add("Scrollframe", TypeScrollbar, {650, 50, 40, 400});
        Compose();
        BarePanel();
    }
    /// Straight to the control: the mouse over the window fills in what a real one may lose.
    static void Send(Control& control, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, control.mapToGlobal(at), button, held, {});
        QCoreApplication::sendEvent(&control, &event);
    }
    ReadOut* readOut() const { return form_->findChild<ReadOut*>(); }
};

TEST_F(DraggingTest, EachFamilyFollowsThePointerAndIsWrittenAtTheRelease) {
    AddAll();
    for (const char* key : {"Main", "Button1", "Info1", "SearchBox", "Scrollframe"}) {
        dbLayoutElement& e = Element(key);
        const Rect before = Fields(e);
        const int x = before.left + 10, y = before.top + 9;
        objSkin->Dirty = false;
        Press(x, y);
        ASSERT_NE(SelControl(), nullptr) << key;
        EXPECT_EQ(SelKey(), key);
        EXPECT_FALSE(objSkin->Dirty);
        EXPECT_FALSE(windows_.panel.shown) << "the sheet is filled at the release";
        MoveTo(x + 7, y + 4);
        MoveTo(x + 31, y + 113);
        EXPECT_EQ(SelControl()->Bounds(),
                  (Rect{before.left + 31, before.top + 113, before.width, before.height}));
        EXPECT_EQ(anchors().Mover.Bounds(), SelControl()->Bounds());
        EXPECT_EQ(Fields(e), before) << "the model waits";
        EXPECT_TRUE(objSkin->Dirty);
        Release(x + 31, y + 113);
        EXPECT_EQ(Fields(e), (Rect{before.left + 31, before.top + 113, before.width, before.height}));
        EXPECT_TRUE(windows_.panel.shown);
        MoveTo(x + 60, y + 100);
        EXPECT_EQ(SelControl()->Bounds().left, before.left + 31) << "released";
    }
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
    Send(button, QEvent::MouseMove, {20, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseMove, {20, 10}, Qt::LeftButton);
    Send(button, QEvent::MouseButtonRelease, {10, 10}, {});
    EXPECT_EQ(Fields(e), (Rect{260, 90, 110, 86}))
        << "the second press of a double click, and two moves of 10";
}

TEST_F(DraggingTest, HandlesStandAroundTheSelectionAndWinThePress) {
    dbLayoutElement& e = Add("Button1", TypeButton, {200, 100, 100, 80});
    Add("Button2", TypeButton, {300, 100, 100, 100});
    Compose();
    Click(210, 110);
    const int pointers[] = {Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
                            Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor};
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(anchors().Anchor[i]->isVisible());
        EXPECT_EQ(anchors().Anchor[i]->cursor().shape(), pointers[i]) << i;
        EXPECT_FALSE(anchors().Anchor[i]->toolTip().isEmpty());
        const QImage look = anchors().Anchor[i]->grab().toImage();
        for (const QPoint edge : {QPoint(0, 0), QPoint(6, 3), QPoint(3, 6)})
            EXPECT_LT(qGray(look.pixel(edge)), 64) << i;
        EXPECT_EQ(look.pixel(1, 5), qRgb(0xFF, 0xFF, 0x80)) << i;
    }
    const QPoint corner = anchors().Anchor[4]->geometry().center();
    Drag(corner, {-5, -3});
    EXPECT_EQ(SelKey(), "Button1") << "though it lies over the other one";
    EXPECT_EQ(Fields(e), (Rect{200, 100, 95, 77}));
}

TEST_F(DraggingTest, ARightPressOnAHandleSizesAndALostSelectionHidesThem) {
    dbLayoutElement& e = Add("Button1", TypeButton, {200, 100, 100, 80});
    Compose();
    Click(210, 110);
    Press(303, 140, Qt::RightButton);
    MoveTo(313, 140);
    Release(313, 140, Qt::RightButton);
    EXPECT_EQ(e.WidthX, 110);
    Press(313, 140);
    form_->selection().SelectSample(*SelControl());
    Release(313, 140);
    EXPECT_FALSE(anchors().Anchor[0]->isVisible());
    EXPECT_EQ(e.WidthX, 110);
}

TEST_F(DraggingTest, TheMenuOffersWhatTheFamilyAllows) {
    AddAll();
    const struct {
        const char* key;
        bool all;
    } cases[] = {{"Main", false},      {"Button1", true},      {"Info1", true},
                 {"SearchBox", false}, {"Scrollframe", false}, {"Button1", true}};
    for (const auto& c : cases) {
        std::map<int, bool> enabled;
        QTimer::singleShot(0, form_.get(), [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (const QAction* item : menu->actions())
                if (!item->isSeparator()) enabled[item->data().toInt()] = item->isEnabled();
            menu->close();
        });
        const Rect at = Fields(Element(c.key));
        Press(at.left + 5, at.top + 5, Qt::RightButton);
        const std::map<int, bool> wanted = {{5, c.all}, {11, c.all}, {21, true},
                                            {22, true}, {31, c.all}, {32, c.all}};
        EXPECT_EQ(enabled, wanted) << c.key;
        EXPECT_EQ(SelKey(), c.key);
        Release(at.left + 5, at.top + 5, Qt::RightButton);
    }
}

TEST_F(DraggingTest, AnotherButtonDuringADragIsASlipOfTheHand) {
    AddAll();
    Press(210, 60);
    MoveTo(230, 70);
    Press(230, 70, Qt::RightButton);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    Release(230, 70, Qt::RightButton);
    MoveTo(240, 80);
    Release(240, 80);
    EXPECT_EQ(Fields(Element("Button1")), (Rect{230, 70, 100, 80}));
}

TEST_F(DraggingTest, ACompositionDuringADragKeepsThePlaceAndEndsIt) {
    AddAll();
    Press(210, 60);
    MoveTo(260, 90);
    form_->UpdateCurrentLayout();
    EXPECT_EQ(Fields(Element("Button1")), (Rect{250, 80, 100, 80}));
    MoveTo(400, 300);
    EXPECT_FALSE(readOut()->isVisible());
    Release(400, 300);
    EXPECT_EQ(Fields(Element("Button1")), (Rect{250, 80, 100, 80}));
    EXPECT_FALSE(form_->parts().drag.MouseIsDown());
}

TEST_F(DraggingTest, ADragLeavesTheWindow) {
    AddAll();
    Drag({210, 60}, {-400, -300});
    EXPECT_EQ(Fields(Element("Button1")), (Rect{-200, -250, 100, 80}));
}

TEST_F(DraggingTest, TheNumbersStandBesideThePointer) {
    AddAll();
    Press(210, 60);
    EXPECT_FALSE(readOut()->isVisible());
    MoveTo(240, 65);
    EXPECT_TRUE(readOut()->isVisible());
    EXPECT_EQ(readOut()->text(), QString::fromUtf8("230, 55   100 \u00D7 80"));
    Release(240, 65);
    EXPECT_FALSE(readOut()->isVisible());
}

/// Gathers what a window paints.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& window) { window.installEventFilter(this); }
    QRegion painted;
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        painted += static_cast<QPaintEvent*>(event)->region();
        ++count;
        return false;
    }
};

TEST_F(DraggingTest, AStepPaintsOnceAndOnlyWhereTheControlAndItsHandlesWereAndAre) {
    AddAll();
    for (int i = 0; i < 60; ++i)
        Add(("More" + std::to_string(i)).c_str(), TypeButton, {i * 12, 20 + i * 9, 60, 40});
    Add("Top", TypeButton, {300, 300, 100, 80});
    Compose();
    Press(310, 310);
    MoveTo(312, 310);
    QCoreApplication::processEvents();
    PaintWatch watch(*form_);
    QRegion allowed = QRect(302, 300, 100, 80).adjusted(-7, -7, 7, 7);
    MoveTo(332, 325);
    QCoreApplication::processEvents();
    allowed += QRect(322, 315, 100, 80).adjusted(-7, -7, 7, 7);
    EXPECT_EQ(watch.count, 1);
    EXPECT_TRUE((watch.painted - allowed).isEmpty());
    EXPECT_FALSE(watch.painted.isEmpty());
    Release(332, 325);
}

}  // namespace
}  // namespace ornavo::testing
