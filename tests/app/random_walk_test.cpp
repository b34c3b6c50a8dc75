// SPDX-License-Identifier: MIT
// Thousands of edits by mouse, keys, menu and panel on the whole program, beside a model that takes the same
// events: what is hit, what is selected and what would be saved must agree at every step. ORNAVO_WALK_EVENTS
// sets how many.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <random>
#include <set>

#include "app/program.h"
#include "canvas/element_menu.h"
#include "document/current_skin.h"
#include "platform/settings.h"
#include "render/view_switches.h"
#include "support/scripted_prompts.h"
#include "walk/model.h"

namespace ornavo::testing {
namespace {

using walk::Model;
using walk::Place;

constexpr int MostElements = 16, MostCorners = 12, MostLayouts = 6;
constexpr QSize SkinSize = {700, 620};

template <class T>
T& TheWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<T*>(widget)) return *window;
    throw std::runtime_error("a window is missing");
}

class RandomWalk : public ::testing::Test {
public:
    RandomWalk() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        viewSwitches = {};
        objSkin = std::make_shared<dbSkin>();
        objCurrentLayout = std::make_shared<dbLayout>();
        program_ =
            std::make_unique<Program>("0.1", folder_.path().toStdString(), folder_.path().toStdString());
        UsePrompts(&prompts_);
        program_->Start("");
        Create();
        Save();
    }
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    bool Rarely(int outOf) { return Below(outOf) == 0; }
    template <class T>
    T& AnyOf(std::vector<T>& all) {
        return all[static_cast<std::size_t>(Below(static_cast<int>(all.size())))];
    }

    // Places.
    Place Anywhere() { return {Below(canvas().ScaleWidth()), Below(canvas().ScaleHeight())}; }
    Place Near(Place at) { return {at.x + Below(3) - 1, at.y + Below(3) - 1}; }
    Place SomewhereIn(const walk::Box& box) {
        return {box.left + Below(std::max(1, box.width)), box.top + Below(std::max(1, box.height))};
    }
    /// More often where something is than anywhere.
    Place Target() {
        switch (Below(8)) {
            case 0:
                return Anywhere();
            case 1:
                return Near(model_->CornerPlace(Below(static_cast<int>(model_->current().corners.size()))));
            case 2:
            case 3:
                if (model_->handles && !IsStandard()) return SomewhereIn(model_->Handle(Below(8)));
                [[fallthrough]];
            default:
                return SomewhereIn(AnyOf(model_->current().elements).shown);
        }
    }
    /// On the canvas; not on a handle of what keeps its size here, nor where it is open what lies in front.
    bool IsPlain(Place at) {
        // The very corner stands for the middle of a window in simulated events.
        if (!QRect(QPoint(1, 0), canvas().size() - QSize(1, 0)).contains(at.x, at.y)) return false;
        bool onHandle = false, onCorner = false;
        for (int i = 0; model_->handles && i < 8; ++i) onHandle |= model_->Handle(i).Contains(at);
        for (int i = 0; i < static_cast<int>(model_->current().corners.size()); ++i) {
            const Place corner = model_->CornerPlace(i);
            onCorner |= walk::Box{corner.x - 2, corner.y - 2, 5, 5}.Contains(at);
        }
        // The scroll frame's bar comes to the front of everything when the frame is moved.
        const bool overBar =
            model_->Named("Scrollbar").shown.Contains(at) && model_->ElementUnder(at) != "Scrollbar";
        // A press on the panel's sample takes no element.
        const QWidget* hit = canvas().childAt(at.x, at.y);
        if (hit && canvas().host().pMain.isAncestorOf(hit)) return false;
        return !overBar && !(onHandle && (onCorner || IsStandard()));
    }
    bool IsStandard() { return Standard.contains(model_->SelectedKey()); }

    // Events.
    void Drag() {
        Place at = Target();
        if (!IsPlain(at) || model_->current().corners.size() > MostCorners) return;
        QTest::mousePress(window(), Qt::LeftButton, {}, {at.x, at.y});
        model_->Press(at);
        for (int moves = Below(4); moves > 0; --moves) {
            const int reach = Rarely(4) ? 300 : 25;
            at = {std::clamp(at.x + Below(2 * reach + 1) - reach, 1, canvas().ScaleWidth() - 1),
                  std::clamp(at.y + Below(2 * reach + 1) - reach, 0, canvas().ScaleHeight() - 1)};
            QTest::mouseMove(window(), {at.x, at.y});
            model_->MoveTo(at);
        }
        QTest::mouseRelease(window(), Qt::LeftButton, {}, {at.x, at.y});
        model_->Release();
    }
    void Arrow() {
        static constexpr struct {
            Qt::Key key;
            const char* name;
        } arrows[] = {
            {Qt::Key_Left, "Left"}, {Qt::Key_Right, "Right"}, {Qt::Key_Up, "Up"}, {Qt::Key_Down, "Down"}};
        const auto& arrow = arrows[Below(4)];
        const bool sizes = !IsStandard(), shift = sizes && Rarely(4), ctrl = sizes && Rarely(3);
        QTest::keyClick(
            window(), arrow.key,
            (shift ? Qt::ShiftModifier : Qt::NoModifier) | (ctrl ? Qt::ControlModifier : Qt::NoModifier));
        model_->Key(arrow.name, shift, ctrl);
    }
    void Delete() {
        QTest::keyClick(window(), Qt::Key_Delete);
        model_->Key("Delete");
    }
    void Menu() {
        const Place at = SomewhereIn(AnyOf(model_->current().elements).shown);
        const std::string hit = model_->ElementUnder(at);
        if (!IsPlain(at) || hit.empty()) return;
        int items[] = {MenuBringToFront, MenuSendToBack, MenuClone, MenuDelete};
        int item = items[Below(Standard.contains(hit) ? 2 : 4)];
        if (item == MenuClone && model_->current().elements.size() >= MostElements) item = MenuDelete;
        bool wasOpen = false;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) return;
            wasOpen = true;
            for (QAction* action : menu->actions())
                if (action->data().toInt() == item && action->isEnabled()) menu->setActiveAction(action);
            if (menu->activeAction()) QTest::keyClick(menu, Qt::Key_Return);
            menu->close();
        });
        answer.start(0);
        QTest::mousePress(window(), Qt::RightButton, {}, {at.x, at.y});
        QTest::mouseRelease(window(), Qt::RightButton, {}, {at.x, at.y});
        ASSERT_TRUE(wasOpen) << hit;
        model_->PressRight(at);
        if (item == MenuClone) model_->CloneElement();
        if (item == MenuDelete) model_->Key("Delete");
        if (item == MenuBringToFront || item == MenuSendToBack) model_->Restack(item == MenuBringToFront);
    }
    void DeleteCorner() {
        const Place at = Near(model_->CornerPlace(Below(static_cast<int>(model_->current().corners.size()))));
        if (!IsPlain(at)) return;
        QTest::mouseClick(window(), Qt::RightButton, {}, {at.x, at.y});
        model_->PressRight(at);
    }
    void AddElement() {
        if (model_->current().elements.size() >= MostElements) return;
        auto& toolbox = TheWindow<frm_Toolbox>();
        TileCommand* const buttons[] = {toolbox.btn_AddButton, toolbox.btn_AddGraphic, toolbox.btn_AddVolume,
                                        toolbox.btn_AddInfo};
        const int type = Below(4);
        buttons[type]->PerformClick();
        model_->AddElement(type + 1);
    }
    void SwitchGrid() {
        viewSwitches.SnapGrid = model_->snap = Rarely(2);
        viewSwitches.GridX = model_->gridX = 1 + Below(20);
        viewSwitches.GridY = model_->gridY = 1 + Below(20);
    }
    void ResizeCanvas() {
        const QSize size = SkinSize + QSize(Below(60), Below(60));
        canvas().resize(size);
        canvas().tmrResizer_Timer();
        model_->ResizeCanvas(size.width(), size.height());
    }
    void AddLayout() {
        if (model_->layouts().size() >= MostLayouts) return;
        const std::string name = "Layout " + std::to_string(++names_);
        emit panel().lst_Layouts->AfterLabelEdit(LayoutList::AddNewKey, QString::fromStdString(name));
        model_->AddLayout(name);
    }
    void ChooseLayout() {
        const int row = Below(static_cast<int>(model_->layouts().size()));
        LayoutList& list = *panel().lst_Layouts;
        if (list.currentItem() == list.topLevelItem(row)) return;
        list.setCurrentItem(list.topLevelItem(row));
        model_->ChooseLayout(model_->layouts()[static_cast<std::size_t>(row)]->key);
    }
    void CloneLayout() {
        if (model_->layouts().size() >= MostLayouts || !panel().lst_Layouts->LayoutIsSelected()) return;
        const std::string name = "Copy " + std::to_string(++names_);
        prompts_.inputs = {name};
        panel().btn_CloneLayout->PerformClick();
        model_->CloneLayout(name);
        saved_ = std::make_unique<Model>(model_->Reopened());
    }
    void RenameLayout() {
        const std::string key = AnyOf(model_->layouts())->key, name = "Name " + std::to_string(++names_);
        emit panel().lst_Layouts->AfterLabelEdit(QString::fromStdString(key), QString::fromStdString(name));
        model_->RenameLayout(key, name);
    }
    void DeleteLayout() {
        LayoutList& list = *panel().lst_Layouts;
        if (model_->layouts().size() < 2 || !list.LayoutIsSelected()) return;
        prompts_.answers = {Answer::Yes};
        const std::string key = list.SelectedKey();
        emit list.DeletePressed();
        model_->DeleteLayout(key);
    }
    void Save() {
        program_->SaveSkin();
        model_->Save();
        saved_ = std::make_unique<Model>(model_->Reopened());
    }
    void Open() {
        program_->LoadDebug(objSkin->SkinName);
        canvas().tmrResizer.stop();
        const bool snap = model_->snap;
        const int gridX = model_->gridX, gridY = model_->gridY;
        model_ = std::make_unique<Model>(saved_->Reopened());
        model_->snap = snap, model_->gridX = gridX, model_->gridY = gridY;
    }
    void Create() {
        const std::string name = "Walk" + std::to_string(++names_);
        panel().btn_CreateNewSkin->PerformClick();
        frm_AddNewSkin& dialog = *panel().AddNewSkin;
        dialog.tbx_SkinName->setText(QString::fromStdString(name));
        dialog.tbx_Width->setText(QString::number(SkinSize.width()));
        dialog.tbx_Height->setText(QString::number(SkinSize.height()));
        dialog.btn_Create_Click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        canvas().tmrResizer.stop();
        model_ = std::make_unique<Model>(name, SkinSize.width(), SkinSize.height());
        SwitchGrid();
        Save();
    }

    void Check() {
        const Control* selected = canvas().selection().SelControl();
        ASSERT_EQ(selected ? selected->Tag : "", model_->SelectedKey());
        ASSERT_EQ(objSkin->Dirty, model_->dirty);
        ASSERT_EQ(objCurrentLayout->Key, model_->current().key);
        std::set<std::string> keys;
        int order = 0;
        for (const dbLayoutElementRef& element : *objCurrentLayout->dbLayoutElements) {
            ASSERT_EQ(element->Order, ++order);
            ASSERT_TRUE(keys.insert(element->Key).second);
        }
        for (order = 1; order <= objCurrentLayout->dbPoints->Count(); ++order)
            ASSERT_TRUE(objCurrentLayout->dbPoints->GetFromOrder(order)) << order;
    }
    /// What would be saved is what the model expects; what was saved reads back equal in every field.
    void CheckFile() {
        const std::string file = objSkin->FileBytes();
        ASSERT_EQ(file.substr(file.find("\r\n\t<Layouts>")), model_->LayoutLines());
        if (objSkin->Dirty) return;
        Save();
        dbSkin loaded;
        loaded.SetBasePath(objSkin->BasePath());
        loaded.SkinName = objSkin->SkinName;
        loaded.LoadSkin();
        ASSERT_EQ(loaded.FileBytes(), objSkin->FileBytes());
    }

    frm_Ornavo& canvas() { return TheWindow<frm_Ornavo>(); }
    frm_SkinProject& panel() { return TheWindow<frm_SkinProject>(); }
    QWindow* window() { return canvas().windowHandle(); }

    static inline const std::set<std::string> Standard = {"Main", "SearchBox", "Scrollbar"};
    QTemporaryDir folder_;
    std::unique_ptr<Program> program_;
    ScriptedPrompts prompts_;
    std::unique_ptr<Model> model_, saved_;
    std::mt19937 random_{20261122};
    int names_ = 0;
};

TEST_F(RandomWalk, ProgramAndModelAgree) {
    struct Event {
        const char* name;
        void (RandomWalk::*effect)();
        int weight;
    };
    constexpr Event events[] = {{"drag", &RandomWalk::Drag, 40},
                                {"arrow", &RandomWalk::Arrow, 20},
                                {"delete", &RandomWalk::Delete, 4},
                                {"menu", &RandomWalk::Menu, 10},
                                {"delete corner", &RandomWalk::DeleteCorner, 4},
                                {"add element", &RandomWalk::AddElement, 8},
                                {"grid", &RandomWalk::SwitchGrid, 2},
                                {"resize", &RandomWalk::ResizeCanvas, 2},
                                {"add layout", &RandomWalk::AddLayout, 1},
                                {"choose layout", &RandomWalk::ChooseLayout, 2},
                                {"clone layout", &RandomWalk::CloneLayout, 1},
                                {"rename layout", &RandomWalk::RenameLayout, 1},
                                {"delete layout", &RandomWalk::DeleteLayout, 1},
                                {"save", &RandomWalk::Save, 2},
                                {"open", &RandomWalk::Open, 1},
                                {"create", &RandomWalk::Create, 1}};
    std::vector<const Event*> urn;
    for (const Event& event : events) urn.insert(urn.end(), static_cast<std::size_t>(event.weight), &event);
    const int count = qEnvironmentVariableIsSet("ORNAVO_WALK_EVENTS")
                          ? qEnvironmentVariableIntValue("ORNAVO_WALK_EVENTS")
                          : 1500;
    for (int i = 0; i < count && !HasFatalFailure(); ++i) {
        const Event& event = *AnyOf(urn);
        SCOPED_TRACE(std::to_string(i) + ": " + event.name);
        (this->*event.effect)();
        if (Rarely(3)) Arrow();
        Check();
        if (i % 25 == 0) CheckFile();
        if (::testing::UnitTest::GetInstance()->current_test_info()->result()->Failed()) break;
    }
}

}  // namespace
}  // namespace ornavo::testing
