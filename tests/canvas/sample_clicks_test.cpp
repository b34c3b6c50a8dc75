// SPDX-License-Identifier: MIT
#include "canvas/sample_clicks.h"

#include "canvas/anchors.h"
#include "document/codes.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class SampleClicksTest : public EditingTest {
protected:
    SampleClicksTest() {
        dbLayoutElement& main = Add("Main", TypeMain, {20, 20, 720, 500});
        main.MarginLeft = main.MarginTop = main.MarginRight = main.MarginBottom = 10;
        Compose();
    }
    QPoint In(const Control& control) const { return control.mapTo(form_.get(), QPoint(5, 3)); }
    static constexpr QPoint Bare = {300, 400};  // on the panel, beside all of its sample
};

TEST_F(SampleClicksTest, AClickOpensItsFamilyWithoutHandles) {
    SamplePanel& sample = host().sample;
    const struct {
        Control& pressed;
        Control& selected;
    } cases[] = {{sample.but_AddAll, sample.but_AddAll}, {sample.but_Label, sample.but_Picture},
                 {sample.but_Song2, sample.but_Song2},   {sample.KeyB, sample.KeyB},
                 {sample.lbl_Kiosk, sample.lbl_Kiosk},   {sample.lbl_SL[27], sample.lbl_SL[0]}};
    for (const auto& c : cases) {
        Click(Bare.x(), Bare.y());
        ASSERT_EQ(SelKey(), "Main");
        windows_.panel = {};
        const QPoint at = In(c.pressed);
        Press(at.x(), at.y());
        EXPECT_EQ(SelKey(), "Main") << "nothing before the release";
        Release(at.x(), at.y());
        EXPECT_EQ(SelControl(), &c.selected) << c.pressed.Name;
        EXPECT_EQ(SelKey(), "") << c.pressed.Name;
        EXPECT_EQ(windows_.panel.opened, 1) << c.pressed.Name;
        EXPECT_FALSE(anchors().Anchor[0]->isVisible()) << c.pressed.Name;
        objSkin->Dirty = false;
        Key(Qt::Key_Right);
        Key(Qt::Key_Delete);
        EXPECT_FALSE(objSkin->Dirty) << "no key moves it";
        Compose();
        EXPECT_EQ(SelControl(), &c.selected) << "nor does a composition let it go";
    }
}

TEST_F(SampleClicksTest, WhatOnlyAdornsThePanelLeavesThePressToItWhoseSizeAllFollow) {
    const SamplePanel& sample = host().sample;
    for (const QPoint& at : {sample.pKeyb.mapTo(form_.get(), QPoint(sample.KeyU.geometry().right() + 2, 9)),
                             sample.but_Shadow.mapTo(form_.get(), sample.but_Shadow.rect().bottomRight())}) {
        anchors().ResetSelection();
        Click(at.x(), at.y());
        EXPECT_EQ(SelKey(), "Main");
    }
    const QPoint song = In(sample.but_Song);
    anchors().ResetSelection();
    Press(song.x(), song.y());
    Release(Bare.x(), Bare.y());
    EXPECT_EQ(SelControl(), nullptr) << "released elsewhere";
    const Rect keys = sample.pKeyb.Bounds();
    Click(Bare.x(), Bare.y());
    Drag(In(*anchors().Anchor[4]), {-40, -60});
    EXPECT_EQ(sample.pKeyb.Bounds(), (Rect{keys.left, keys.top - 60, keys.width, keys.height}));
    EXPECT_EQ(sample.lbl_SL[27].Bounds().top, 26 * (439 / 26));
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(sample.pKeyb.Bounds().top, keys.top - 61) << "the sample follows the panel's size";
}

}  // namespace
}  // namespace ornavo::testing
