// SPDX-License-Identifier: MIT
// Thousands of edits by mouse, keys, menu, sheet and panel on the whole program. After each of them what is
// always so must be so. ORNAVO_WALK_EVENTS sets how many.
#include <QLineEdit>
#include <random>
#include <set>

#include "app/program_fixture.h"
#include "canvas/element_menu.h"
#include "document/shape_edits.h"
#include "render/redraw.h"
#include "render/view_switches.h"

namespace ornavo::testing {
namespace {

constexpr int MostElements = 16, MostCorners = 12, MostLayouts = 6;
constexpr QSize SkinSize = {700, 620};

class RandomWalk : public ProgramTest {
public:
    RandomWalk() {
        viewSwitches = {};
        Start("");
        Create();
    }
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool Rarely(int outOf) { return Below(outOf) == 0; }
    dbLayoutElement& AnyElement() { return *elements().Item(1 + Below(elements().Count())); }
    QString NewName() { return "Name " + QString::number(++names_); }

    /// More often where something is than anywhere.
    QPoint Target() {
        const Anchors& anchors = Main().parts().anchors;
        QRect place = {0, 0, Main().width(), Main().height()};
        if (Rarely(6))
            place = Main().parts().points.FindCorner(1 + Below(points().Count()))->geometry();
        else if (!Rarely(6))
            place = ControlOf(AnyElement()).geometry();
        else if (anchors.Anchor[0]->isVisible())
            place = anchors.Anchor[Below(8)]->geometry();
        return OnCanvas(place.topLeft() +
                        QPoint(Below(std::max(1, place.width())), Below(std::max(1, place.height()))));
    }
    /// The very corner stands for the middle of a window in simulated events.
    static QPoint OnCanvas(QPoint at) {
        return {std::clamp(at.x(), 1, Main().width() - 1), std::clamp(at.y(), 0, Main().height() - 1)};
    }

    // What a user does.
    void Drag() {
        QPoint at = Target();
        const bool mayAddCorner = points().Count() < MostCorners;
        if (!mayAddCorner && !Main().childAt(at)) return;
        QTest::mousePress(window(), Qt::LeftButton, {}, at);
        for (int moves = Below(4); moves > 0; --moves) {
            const int reach = Rarely(4) ? 300 : 25;
            at = OnCanvas(at + QPoint(Below(2 * reach + 1) - reach, Below(2 * reach + 1) - reach));
            QTest::mouseMove(window(), at);
        }
        QTest::mouseRelease(window(), Qt::LeftButton, {}, at);
    }
    void Key() {
        constexpr Qt::Key keys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab};
        QTest::keyClick(window(), keys[Below(5)],
                        (Rarely(4) ? Qt::ShiftModifier : Qt::NoModifier) |
                            (Rarely(3) ? Qt::ControlModifier : Qt::NoModifier));
    }
    void Delete() { QTest::keyClick(window(), Qt::Key_Delete); }
    void DeleteCorner() {
        const auto* corner = Main().parts().points.FindCorner(1 + Below(points().Count()));
        const QPoint at = OnCanvas(corner->geometry().center());
        if (Main().childAt(at) == corner) QTest::mouseClick(window(), Qt::RightButton, {}, at);
    }
    void Menu() {
        constexpr int items[] = {MenuClone, MenuDelete, MenuOriginalSize};
        const int item = items[Below(3)];
        const Control* selected = Main().selection().SelControl();
        if (!selected || IsStandard() || (item == MenuClone && elements().Count() >= MostElements)) return;
        mnuElementSub_Click(Main().parts(), item);
    }
    void Restack() {
        const bool toFront = Rarely(2);
        const std::string key = Main().selection().SelControl() ? Main().selection().SelKey() : "";
        mnuElementSub_Click(Main().parts(), toFront ? MenuBringToFront : MenuSendToBack);
        if (!elements().Find(key)) return;
        ASSERT_EQ(elements().Item(key)->Order, toFront ? elements().Count() : 1);
    }
    void AddElement() {
        if (elements().Count() >= MostElements) return;
        const auto& toolbox = Window<frm_Toolbox>();
        TileCommand* const buttons[] = {toolbox.btn_AddButton, toolbox.btn_AddGraphic, toolbox.btn_AddVolume,
                                        toolbox.btn_AddInfo};
        buttons[Below(4)]->PerformClick();
        ASSERT_EQ(elements().Item(Main().selection().SelKey())->Order, elements().Count());
    }
    /// A row of the sheet that is open gets another value, as if it were pasted. What is stretched has no
    /// exact way back.
    void EditRow() {
        if (!program_->properties().IsShown()) return;
        RowPools& pools = Window<frm_Properties>().parts().pools;
        RowText& box = pools.tbx_Prop[1 + Below(pools.tbx_Prop.Top())];
        RowCheck& check = pools.chk_Boolean[1 + Below(std::max(1, pools.chk_Boolean.Top()))];
        if (Rarely(3) && !check.Tag.empty() && !check.Tag.starts_with("Stretch"))
            check.click();
        else if (!box.Tag.empty() && !box.Locked() && !box.button)
            box.setText(QString::number(Below(200)));
        program_->properties().DrawPendingEdits();
    }
    void SwitchGrid() {
        viewSwitches.SnapGrid = Rarely(2);
        viewSwitches.GridX = 1 + Below(20);
        viewSwitches.GridY = 1 + Below(20);
    }
    /// By whole pixels on either side, so that every place has its way back.
    void ResizeCanvas() {
        Main().resize(SkinSize + 2 * QSize(Below(30), Below(30)));
        Main().tmrResizer_Timer();
    }
    void AddLayout() {
        if (objSkin->dbLayouts->Count() < MostLayouts)
            emit list().AfterLabelEdit(LayoutList::AddNewKey, NewName());
    }
    void ChooseLayout() { list().setCurrentItem(list().topLevelItem(Below(objSkin->dbLayouts->Count()))); }
    void CloneLayout() {
        if (objSkin->dbLayouts->Count() >= MostLayouts || !list().LayoutIsSelected()) return;
        prompts_.inputs = {NewName().toStdString()};
        Panel().btn_CloneLayout->PerformClick();
        ASSERT_FALSE(objSkin->Dirty) << "it also saves";
        saved_ = objSkin->FileBytes();
    }
    void RenameLayout() {
        const dbLayout& layout = *objSkin->dbLayouts->Item(1 + Below(objSkin->dbLayouts->Count()));
        emit list().AfterLabelEdit(QString::fromStdString(layout.Key), NewName());
    }
    void DeleteLayout() {
        if (objSkin->dbLayouts->Count() < 2 || !list().LayoutIsSelected()) return;
        prompts_.answers = {Answer::Yes};
        emit list().DeletePressed();
    }
    /// What is saved and read again is what the model has.
    void Save() {
        program_->SaveSkin();
        ASSERT_FALSE(objSkin->Dirty);
        saved_ = objSkin->FileBytes();
        dbSkin loaded;
        loaded.SetBasePath(objSkin->BasePath());
        loaded.SkinName = objSkin->SkinName;
        loaded.LoadSkin();
        ASSERT_EQ(loaded.FileBytes(), saved_);
    }
    void Open() {
        program_->LoadDebug(objSkin->SkinName);
        Main().tmrResizer.stop();
        ASSERT_FALSE(objSkin->Dirty);
        ASSERT_EQ(objSkin->FileBytes(), saved_);
    }
    void Create() {
        Panel().btn_CreateNewSkin->PerformClick();
        frm_AddNewSkin& dialog = *Panel().AddNewSkin;
        dialog.tbx_SkinName->setText("Walk" + QString::number(++names_));
        dialog.tbx_Width->setText(QString::number(SkinSize.width()));
        dialog.tbx_Height->setText(QString::number(SkinSize.height()));
        dialog.btn_Create_Click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Main().tmrResizer.stop();
        Save();
    }

    // What is always so.
    void CheckModel() {
        std::set<std::string> keys;
        int order = 0;
        for (const dbLayoutElementRef& element : elements()) {
            ASSERT_EQ(element->Order, ++order);
            ASSERT_TRUE(keys.insert(element->Key).second) << element->Key;
        }
        for (order = 1; order <= points().Count(); ++order)
            ASSERT_TRUE(points().GetFromOrder(order)) << order;
        ASSERT_EQ(list().SelectedKey(), objCurrentLayout->Key);
    }
    void CheckSelection() {
        const Selection& selection = Main().selection();
        const Anchors& anchors = Main().parts().anchors;
        const bool handles = anchors.Anchor[0]->isVisible();
        ASSERT_TRUE(selection.SelControl() || !handles);
        if (!selection.SelControl()) return;
        const std::string key = selection.SelKey();
        ASSERT_TRUE(!handles || anchors.Mover.Bounds() == selection.SelControl()->Bounds()) << key;
        if (key.empty()) return;  // of the panel's sample
        const std::string& tag = selection.SelControl()->Tag;
        ASSERT_TRUE(tag == key || tag.empty()) << key;  // empty: edited down to no extent
        if (selection.IsCorner())
            ASSERT_TRUE(points().GetFromOrder(OrderOfTag(key))) << key;
        else
            ASSERT_TRUE(elements().Find(key)) << key;
    }
    /// Of what can be seen.
    std::string Places() {
        std::string places;
        for (const dbLayoutElementRef& element : elements()) {
            const Control& control = ControlOf(*element);
            if (!control.isVisible() || control.geometry().isEmpty()) continue;
            const Rect at = control.Bounds();
            places += element->Key;
            for (const int number : {at.left, at.top, at.width, at.height})
                places += ' ' + std::to_string(number);
            places += '\n';
        }
        return places;
    }
    /// A whole composition shows what single steps have drawn, and changes nothing.
    void CheckComposition() {
        const std::string file = objSkin->FileBytes(), places = Places();
        Main().UpdateCurrentLayout();
        ASSERT_EQ(Places(), places);
        ASSERT_EQ(objSkin->FileBytes(), file);
    }

    static dbLayoutElements& elements() { return *objCurrentLayout->dbLayoutElements; }
    static dbPoints& points() { return *objCurrentLayout->dbPoints; }
    static LayoutList& list() { return *Panel().lst_Layouts; }
    static QWindow* window() { return Main().windowHandle(); }
    static bool IsStandard() {
        return std::set<std::string>{"Main", "SearchBox", "Scrollbar"}.contains(Main().selection().SelKey());
    }

    std::string saved_;  // the file
    std::mt19937 random_{20261122};
    int names_ = 0;
};

TEST_F(RandomWalk, WhatIsAlwaysSoIsSo) {
    // Unasked: the file may change, but no question comes for it. Of the rows some are so.
    enum Change { Edits, Unasked, Looks, Either };
    struct Event {
        const char* name;
        void (RandomWalk::*effect)();
        int weight;
        Change change;
    };
    using Walk = RandomWalk;
    constexpr Event events[] = {{"drag", &Walk::Drag, 40, Edits},
                                {"key", &Walk::Key, 20, Edits},
                                {"delete", &Walk::Delete, 4, Edits},
                                {"menu", &Walk::Menu, 10, Edits},
                                {"restack", &Walk::Restack, 5, Unasked},
                                {"delete corner", &Walk::DeleteCorner, 4, Edits},
                                {"add element", &Walk::AddElement, 8, Edits},
                                {"edit row", &Walk::EditRow, 20, Either},
                                {"grid", &Walk::SwitchGrid, 2, Looks},
                                {"resize", &Walk::ResizeCanvas, 2, Looks},
                                {"add layout", &Walk::AddLayout, 1, Edits},
                                {"choose layout", &Walk::ChooseLayout, 2, Looks},
                                {"clone layout", &Walk::CloneLayout, 1, Either},
                                {"rename layout", &Walk::RenameLayout, 1, Unasked},
                                {"delete layout", &Walk::DeleteLayout, 1, Edits},
                                {"save", &Walk::Save, 2, Either},
                                {"open", &Walk::Open, 1, Either},
                                {"create", &Walk::Create, 1, Either}};
    std::vector<Event> urn;
    for (const Event& event : events) urn.insert(urn.end(), static_cast<std::size_t>(event.weight), event);
    const int count = qEnvironmentVariableIsSet("ORNAVO_WALK_EVENTS")
                          ? qEnvironmentVariableIntValue("ORNAVO_WALK_EVENTS")
                          : 1000;
    for (int i = 0; i < count && !HasFailure(); ++i) {
        const Event& event = urn[static_cast<std::size_t>(Below(static_cast<int>(urn.size())))];
        SCOPED_TRACE(std::to_string(i) + ": " + event.name);
        const std::string file = objSkin->FileBytes();
        const bool dirty = objSkin->Dirty;
        (this->*event.effect)();
        const bool changed = objSkin->FileBytes() != file;
        const bool staysClean = event.change == Looks || event.change == Unasked;
        EXPECT_TRUE(event.change != Edits || objSkin->Dirty || !changed);
        EXPECT_TRUE(event.change != Looks || !changed);
        EXPECT_TRUE(!staysClean || objSkin->Dirty == dirty);
        CheckModel();
        CheckSelection();
        if (i % 5 == 0) CheckComposition();
    }
}

}  // namespace
}  // namespace ornavo::testing
