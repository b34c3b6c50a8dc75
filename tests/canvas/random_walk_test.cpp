// SPDX-License-Identifier: MIT
// Many edits in a row, by mouse, keys and menu, with a shadow list of keys kept beside: whatever is hit must
// be what was selected.
#include <random>
#include <set>

#include "canvas/element_families.h"
#include "canvas/element_menu.h"
#include "canvas/keys.h"
#include "canvas/new_elements.h"
#include "canvas/shape_points.h"
#include "document/codes.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class WalkTest : public EditingTest {
public:
    WalkTest() {
        Fill();
        Compose();
    }
    void Fill() {
        Add("Main", TypeMain, {50, 50, 300, 200});
        Add("SearchBox", TypeSearchBox, {400, 20, 200, 24});
        Add("Scrollframe", TypeScrollbar, {700, 50, 40, 400});
        objCurrentLayout->AddDummyPoints();
        shadow_ = {"Main", "SearchBox", "Scrollframe"};
    }
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    QPoint Anywhere() { return {Below(800), Below(600)}; }

    /// Drags whatever lies there, and now and then something comes in between.
    void DragSomewhere() {
        const QPoint from = Anywhere(), to = Anywhere();
        Press(from.x(), from.y());
        MoveTo((from.x() + to.x()) / 2, (from.y() + to.y()) / 2);
        if (Below(9) == 0) form_->UpdateCurrentLayout();
        if (Below(9) == 0) PressDelete();
        if (Below(9) == 0) Press(to.x(), to.y(), Qt::MiddleButton);
        MoveTo(to.x(), to.y());
        Release(to.x(), to.y());
        Release(to.x(), to.y(), Qt::MiddleButton);
    }
    void PressDelete() {
        const ElementFamily* family = SelControl ? FamilyOf(*SelControl) : nullptr;
        if (family && !family->isStandard) std::erase(shadow_, SelControl->Tag);
        Key(Qt::Key_Delete);
    }
    void PressArrow() {
        static constexpr Qt::Key Arrows[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
        static constexpr Qt::KeyboardModifier Modifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                             Qt::ControlModifier, Qt::AltModifier};
        Key(Arrows[Below(4)], Modifiers[Below(4)]);
    }
    void AddOne() {
        if (shadow_.size() > 25) return;
        AddElement(form_->parts(), TypeButton + Below(4));
        shadow_.push_back(
            objCurrentLayout->dbLayoutElements->Item(static_cast<int>(shadow_.size()) + 1)->Key);
        if (viewSwitches.ShowElements) {
            EXPECT_EQ(SelKey, shadow_.back());
        }
    }
    void CloneOne() {
        const dbLayoutElementRef source = Selected();
        if (!source || shadow_.size() > 25) return;
        mnuElementSub_Click(form_->parts(), MenuClone);
        if (FamilyOf(*SelControl)->isStandard) return;
        shadow_.push_back(
            objCurrentLayout->dbLayoutElements->Item(static_cast<int>(shadow_.size()) + 1)->Key);
    }
    void Restack() {
        const dbLayoutElementRef element = Selected();
        if (!element) return;
        const bool front = Below(2) == 0;
        std::erase(shadow_, element->Key);
        shadow_.insert(front ? shadow_.end() : shadow_.begin(), element->Key);
        mnuElementSub_Click(form_->parts(), front ? MenuBringToFront : MenuSendToBack);
    }
    void Narrow() {
        const dbLayoutElementRef element = Selected();
        if (element) (Below(2) ? element->WidthX : element->HeightY) = 0;
        if (Below(2)) form_->UpdateCurrentLayout();
        PressArrow();
    }
    void Switch() {
        bool ViewSwitches::*const which[] = {&ViewSwitches::SnapGrid, &ViewSwitches::ShowLines,
                                             &ViewSwitches::ShowPoints, &ViewSwitches::ShowElements};
        bool& one = viewSwitches.*which[Below(4)];
        one = !one;
        form_->UpdateCurrentLayout();
    }
    void AnotherLayout() {
        objCurrentLayout = std::make_shared<dbLayout>();
        objCurrentLayout->Key = "Another";
        Fill();
        form_->UpdateCurrentLayout();
        EXPECT_EQ(SelControl, nullptr);
    }
    static dbLayoutElementRef Selected() {
        return SelControl && FamilyOf(*SelControl) ? objCurrentLayout->dbLayoutElements->Find(SelControl->Tag)
                                                   : nullptr;
    }

    void Check() {
        std::string keys;
        for (const std::string& key : shadow_) keys += (keys.empty() ? "" : " ") + key;
        ASSERT_EQ(Keys(), keys);
        int order = 0;
        for (const dbLayoutElementRef& e : *objCurrentLayout->dbLayoutElements) ASSERT_EQ(e->Order, ++order);
        std::set<int> orders;
        for (const dbPointRef& point : *objCurrentLayout->dbPoints) orders.insert(point->Order);
        ASSERT_EQ(orders.size(), static_cast<std::size_t>(objCurrentLayout->dbPoints->Count()));
        ASSERT_TRUE(orders.empty() || (*orders.begin() == 1 && *orders.rbegin() == std::ssize(orders)));
        ASSERT_TRUE(!SelControl || SelControl->Tag == SelKey) << SelKey;
        ASSERT_FALSE(form_->parts().drag.IsPlacing);
        ASSERT_TRUE(prompts_.asked.empty());
    }

    std::mt19937 random_{20260101};
    std::vector<std::string> shadow_;
};

TEST_F(WalkTest, TheRightElementIsHitWhateverCameBefore) {
    using Act = void (WalkTest::*)();
    const Act acts[] = {&WalkTest::DragSomewhere, &WalkTest::DragSomewhere, &WalkTest::DragSomewhere,
                        &WalkTest::PressArrow,    &WalkTest::PressArrow,    &WalkTest::PressDelete,
                        &WalkTest::AddOne,        &WalkTest::AddOne,        &WalkTest::CloneOne,
                        &WalkTest::Restack,       &WalkTest::Restack,       &WalkTest::Narrow,
                        &WalkTest::Switch};
    for (int i = 0; i < 1500 && !HasFatalFailure(); ++i) {
        if (i % 200 == 199)
            AnotherLayout();
        else
            (this->*acts[Below(static_cast<int>(std::size(acts)))])();
        Check();
    }
}

}  // namespace
}  // namespace ornavo::testing
