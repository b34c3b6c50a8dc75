// SPDX-License-Identifier: MIT
#include "canvas/sample_clicks.h"

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
    const std::pair<Control&, Control&> cases[] = {{sample.but_AddAll, sample.but_AddAll},
                                                   {sample.but_Label, sample.but_Picture},
                                                   {sample.but_Song2, sample.but_Song2},
                                                   {sample.lbl_SL[27], sample.lbl_SL[0]}};
    for (const auto& [pressed, selected] : cases) {
        Click(Bare.x(), Bare.y());
        ASSERT_EQ(SelKey(), "Main");
        windows_.panel = {};
        const QPoint at = In(pressed);
        Click(at.x(), at.y());
        EXPECT_EQ(SelControl(), &selected) << pressed.Name;
        EXPECT_TRUE(SelKey().empty() && windows_.panel.opened == 1) << pressed.Name;
        EXPECT_FALSE(anchors().Anchor[0]->isVisible()) << pressed.Name;
        Key(Qt::Key_Right);
        Key(Qt::Key_Delete);
        Compose();
        EXPECT_EQ(SelControl(), &selected) << "keys and a composition leave it";
    }
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(SampleClicksTest, AReleaseElsewhereOpensNothingAndAllFollowThePanelsSize) {
    const SamplePanel& sample = host().sample;
    const QPoint song = In(sample.but_Song);
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
