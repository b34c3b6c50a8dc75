// SPDX-License-Identifier: MIT
#include "canvas/frm_toolbox.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>

#include "canvas/new_elements.h"
#include "document/codes.h"
#include "editor/settings_keys.h"
#include "support/canvas_fixture.h"

namespace ornavo::testing {
namespace {

class ToolboxTest : public EditingTest {
protected:
    ToolboxTest() : toolbox(form_->parts()) {
        form_->parts().showGrid = [this] { ++grids; };
        toolbox.Open();
        QCoreApplication::processEvents();
        grids = 0;
    }
    static const dbLayoutElement& Last() {
        const dbLayoutElements& all = *objCurrentLayout->dbLayoutElements;
        return *all.Item(all.Count());
    }
    static void Click(TileCommand* command) { QTest::mouseClick(command, Qt::LeftButton); }
    frm_Toolbox toolbox;
    int grids = 0;
};

TEST_F(ToolboxTest, WhatIsAddedOrClonedIsSelectedAndHasASheetOfItsOwn) {
    for (const auto& [add, bounds] : {std::pair{toolbox.btn_AddButton, Rect{25, 25, 50, 50}},
                                      {toolbox.btn_AddGraphic, {25, 25, 50, 50}},
                                      {toolbox.btn_AddVolume, {725, 25, 50, 50}},
                                      {toolbox.btn_AddInfo, {100, 20, 400, 50}}}) {
        QApplication::setActiveWindow(&toolbox);
        Click(add);
        EXPECT_EQ(SelKey(), Last().Key);
        ASSERT_TRUE(SelControl());
        EXPECT_EQ(SelControl()->Tag, SelKey());
        EXPECT_EQ(SelControl()->Bounds(), bounds);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == form_.get(); }, 1000))
            << "arrows and Delete reach it";
    }
    Element("Info1").Font = std::make_shared<Font>();
    Element("Info1").InfoField = "Now";
    CloneElement(form_->parts());
    EXPECT_EQ(Last().ElementName + ", " + Last().InfoField, "Clone of Info1, Now");
    EXPECT_EQ(Last().Font, Element("Info1").Font) << "one font serves both";
    EXPECT_EQ(Last().Order, 5);
    EXPECT_EQ(SelKey(), "Info2");
    EXPECT_TRUE(windows_.panel.unloaded == 5 && windows_.panel.opened == 5);
    toolbox.chk_ShowElements->click();
    Click(toolbox.btn_AddButton);
    EXPECT_EQ(SelKey(), "Button2") << "unseen it is the selection all the same";
    EXPECT_TRUE(SelControl() && SelControl()->isHidden() && windows_.panel.shown);
    Compose();
    toolbox.chk_ShowElements->click();
    EXPECT_TRUE(SelKey() == "Button2" && anchors().Anchor[0]->isVisible());
}

TEST_F(ToolboxTest, WhatCannotBeAddedOrClonedChangesNothing) {
    Add("Main", TypeMain, {100, 100, 200, 200});
    Compose();
    CloneElement(form_->parts());
    form_->SelectWithAnchors(form_->host().pMain);
    CloneElement(form_->parts());
    for (const int type : {0, 5}) AddElement(form_->parts(), type);
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Count(), 1);
    objCurrentLayout = std::make_shared<dbLayout>();
    Click(toolbox.btn_AddButton);
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Count(), 0) << "no layout is open";
    EXPECT_FALSE(objSkin->Dirty);
    Compose();
    EXPECT_FALSE(toolbox.btn_AddInfo->isEnabled());
    objCurrentLayout = objSkin->dbLayouts->Item(1);
    Compose();
    EXPECT_TRUE(toolbox.btn_AddInfo->isEnabled());
}

TEST_F(ToolboxTest, EachBoxTurnsItsSwitchAndWhatIsShown) {
    Add("Button1", TypeButton, {10, 10, 20, 20});
    objCurrentLayout->AddDummyPoints();
    Compose();
    const auto shown = [&] {
        const ShapePoints& points = form_->parts().points;
        std::string seen = host().Element[1].isVisible() ? "element " : "";
        if (anchors().Anchor[0]->isVisible()) seen += "handles ";
        if (points.cPoint.Top() >= 4 && points.cPoint[4].isVisible()) seen += "lines ";
        return seen + (points.cPointMover[1].isVisible() ? "corners" : "");
    };
    const struct {
        QCheckBox* box;
        bool ViewSwitches::*viewSwitch;
        const char* shown;
    } rows[] = {{toolbox.chk_ShowShape, &ViewSwitches::ShowShape, "element handles corners"},
                {toolbox.chk_ShapeInverted, &ViewSwitches::ShapeInverted, "element handles corners"},
                {toolbox.chk_ShowElements, &ViewSwitches::ShowElements, "corners"},
                {toolbox.chk_ShowPoints, &ViewSwitches::ShowPoints, "element handles "},
                {toolbox.chk_ShowLines, &ViewSwitches::ShowLines, "element handles lines corners"},
                {toolbox.chk_ShowGrid, &ViewSwitches::ShowGrid, "element handles corners"},
                {toolbox.chk_SnapGrid, &ViewSwitches::SnapGrid, "element handles corners"}};
    for (const auto& row : rows) {
        form_->SelectWithAnchors(host().Element[1]);
        bool& viewSwitch = viewSwitches.*row.viewSwitch;
        const bool before = viewSwitch;
        const std::string name = row.box->text().toStdString();
        EXPECT_EQ(row.box->isChecked(), before) << name;
        const int painted = grids;
        row.box->click();
        EXPECT_EQ(viewSwitch, !before) << name;
        EXPECT_EQ(shown(), row.shown) << name;
        EXPECT_EQ(grids - painted, row.box == toolbox.chk_ShowGrid ? 1 : 0) << name;
        row.box->click();
        EXPECT_TRUE(viewSwitch == before && host().Element[1].isVisible()) << name;
        const Raised placing = form_->parts().drag.Placing();
        row.box->click();
        EXPECT_EQ(viewSwitch, row.box == toolbox.chk_SnapGrid ? !before : before) << name;
        viewSwitch = before;
    }
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(ToolboxTest, ASpacingIsAWholeNumberFromOne) {
    const std::pair<const char*, int> rows[] = {{"abc", 1}, {"-5", 1},          {"012", 12}, {"0", 1},
                                                {"25", 25}, {"99999999999", 1}, {"7.5", 8},  {" ", 1}};
    for (const bool across : {true, false})
        for (const auto& [text, spacing] : rows) {
            QLineEdit* box = across ? toolbox.tbx_GridX : toolbox.tbx_GridY;
            box->setFocus();
            viewSwitches.GridX = viewSwitches.GridY = 3;
            box->setText(text);
            QTest::keyClick(box, Qt::Key_Return);
            EXPECT_EQ(across ? viewSwitches.GridX : viewSwitches.GridY, spacing) << text;
            EXPECT_EQ(across ? viewSwitches.GridY : viewSwitches.GridX, 3) << text;
            EXPECT_EQ(box->text(), QString::number(spacing)) << text;
        }
    EXPECT_GT(grids, 0);
}

TEST_F(ToolboxTest, ItComesBackWhereItWasAndTheTabKeyVisitsAllByName) {
    EXPECT_EQ(toolbox.pos(), QPoint(1, 51));
    toolbox.move(200, 120);
    toolbox.close();
    EXPECT_TRUE(settings::ToolboxLeft.Read() == 3000 && settings::ToolboxTop.Read() == 1800);
    SaveSetting("Toolbox", "Top", "high up");
    viewSwitches.GridX = 33;
    viewSwitches.SnapGrid = true;
    toolbox.Open();
    EXPECT_EQ(toolbox.pos(), QPoint(200, 51));
    EXPECT_EQ(toolbox.tbx_GridX->text(), "33");
    EXPECT_TRUE(toolbox.chk_SnapGrid->isChecked());
    int visited = 0;
    for (QWidget* next = toolbox.nextInFocusChain(); next != &toolbox; next = next->nextInFocusChain()) {
        if (!(next->focusPolicy() & Qt::TabFocus)) continue;
        ++visited;
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(next);
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << next->objectName().toStdString();
    }
    EXPECT_EQ(visited, 16);
}

TEST_F(ToolboxTest, ADroppedSkinIsOpenedAndAFailureTold) {
    for (const char* name : {"back.bmp", "skinsettings.XML"}) QFile(Path(name)).open(QIODevice::WriteOnly);
    for (const auto& [name, taken] : {std::pair{"back.bmp", false},
                                      {"gone", false},
                                      {"", true},
                                      {"skinsettings.XML", true},
                                      {"", true}}) {
        windows_.opened.clear();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(Path(name))});
        QDragEnterEvent entering({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &entering);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &event);
        EXPECT_EQ(entering.isAccepted(), taken) << name;
        EXPECT_EQ(windows_.opened, taken ? Path(name).toStdString() : "");
        EXPECT_EQ(prompts_.asked.empty(), windows_.failure.empty());
        if (taken && *name) windows_.failure = "no such disk";
    }
    EXPECT_EQ(prompts_.asked, std::vector<std::string>{"Loading Skin Error: no such disk"});
}

}  // namespace
}  // namespace ornavo::testing
