// SPDX-License-Identifier: MIT
#include "canvas/frm_toolbox.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>

#include "canvas/new_elements.h"
#include "canvas/stage.h"
#include "document/codes.h"
#include "editor/settings_keys.h"

namespace ornavo::testing {
namespace {

class ToolboxTest : public StageTest {
protected:
    ToolboxTest() : toolbox(form.parts()) {
        UseSettingsFile(folder_.filePath("settings.ini"));
        form.parts().showGrid = [this] { ++grids; };
        toolbox.Open();
        QCoreApplication::processEvents();
        grids = 0;
    }
    static const dbLayoutElement& Last() {
        const dbLayoutElements& all = *objCurrentLayout->dbLayoutElements;
        return *all.Item(all.Count());
    }
    void Click(TileCommand* command) { QTest::mouseClick(command, Qt::LeftButton); }
    void Type(QLineEdit* box, const char* text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(text));
        QTest::keyClick(box, Qt::Key_Return);
    }
    frm_Toolbox toolbox;
    int grids = 0;

private:
    QTemporaryDir folder_;
};

TEST_F(ToolboxTest, EachButtonAddsItsElementOnTopAndSelected) {
    struct Row {
        TileCommand* command;
        int type;
        const char* key;
        Rect fields, shown;
        bool left, right;
        Colour background;
        int speed;
    };
    const Row rows[] = {
        {toolbox.btn_AddButton, 1, "Button1", {25, 25, 50, 50}, {25, 25, 50, 50}, true, false, 0, 0},
        {toolbox.btn_AddGraphic, 2, "Graphic1", {25, 25, 50, 50}, {25, 25, 50, 50}, true, false, 0, 0},
        {toolbox.btn_AddVolume, 3, "Volume1", {75, 25, 50, 50}, {725, 25, 50, 50}, false, true, 0, 0},
        {toolbox.btn_AddInfo, 4, "Info1", {100, 20, 400, 50}, {100, 20, 400, 50}, true, true, ButtonFace, 1},
    };
    int order = 0;
    for (const Row& row : rows) {
        windows.panel.notes.clear();
        objSkin->Dirty = false;
        Click(row.command);
        const dbLayoutElement& e = Last();
        EXPECT_EQ(e.Key, row.key);
        EXPECT_EQ(e.ElementName, row.key);
        EXPECT_EQ(e.ElementType, row.type);
        EXPECT_EQ(e.Order, ++order);
        EXPECT_EQ((Rect{e.LeftX, e.TopY, e.WidthX, e.HeightY}), row.fields);
        EXPECT_EQ(e.LockLeft, row.left);
        EXPECT_EQ(e.LockRight, row.right);
        EXPECT_TRUE(e.LockTop && !e.LockBottom && e.Visible);
        EXPECT_EQ(e.BackgroundColor, row.background);
        EXPECT_EQ(e.CapScrollSpeed, row.speed);
        EXPECT_TRUE(objSkin->Dirty);
        EXPECT_EQ(SelKey, row.key);
        ASSERT_TRUE(SelControl);
        EXPECT_EQ(SelControl->Bounds(), row.shown);
        EXPECT_NE(windows.panel.notes.find("unload open "), std::string::npos);
    }
}

TEST_F(ToolboxTest, NumbersFillTheGapsAndClonesShareThem) {
    Add("Button1", TypeButton, {10, 10, 20, 20});
    Add("Button3", TypeButton, {10, 10, 20, 20}).ElementName = "Play";
    Show();
    Click(toolbox.btn_AddButton);
    EXPECT_EQ(Last().Key, "Button2");
    form.PlaceAnchors(&form.host().Element[2], false);
    ASSERT_EQ(SelKey, "Button3");
    const dbLayoutElementRef source = objCurrentLayout->dbLayoutElements->Item("Button3");
    source->Font = std::make_shared<Font>();
    source->Caption = "Go";
    CloneElement(form.parts());
    const dbLayoutElement& clone = Last();
    EXPECT_EQ(clone.Key, "Button4");
    EXPECT_EQ(clone.ElementName, "Clone of Play");
    EXPECT_EQ(clone.Order, 4);
    EXPECT_EQ(clone.Caption, "Go");
    EXPECT_EQ(clone.Font, source->Font) << "one font serves both";
    EXPECT_EQ(SelKey, "Button4");
    EXPECT_EQ(SelControl->Bounds(), (Rect{10, 10, 20, 20}));
}

TEST_F(ToolboxTest, WhatCannotBeAddedOrClonedChangesNothing) {
    Add("Main", TypeMain, {100, 100, 200, 200});
    Show();
    CloneElement(form.parts());
    form.PlaceAnchors(&form.host().pMain, false);
    CloneElement(form.parts());
    AddElement(form.parts(), 0);
    AddElement(form.parts(), 5);
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Count(), 1);
    objCurrentLayout = std::make_shared<dbLayout>();
    Click(toolbox.btn_AddButton);
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Count(), 0) << "no layout is open";
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(ToolboxTest, EachBoxTurnsItsSwitchAndNothingElse) {
    const std::pair<QCheckBox*, bool ViewSwitches::*> rows[] = {
        {toolbox.chk_ShowShape, &ViewSwitches::ShowShape},
        {toolbox.chk_ShapeInverted, &ViewSwitches::ShapeInverted},
        {toolbox.chk_ShowElements, &ViewSwitches::ShowElements},
        {toolbox.chk_ShowPoints, &ViewSwitches::ShowPoints},
        {toolbox.chk_ShowLines, &ViewSwitches::ShowLines},
        {toolbox.chk_ShowGrid, &ViewSwitches::ShowGrid},
        {toolbox.chk_SnapGrid, &ViewSwitches::SnapGrid},
    };
    for (const auto& [box, viewSwitch] : rows) {
        const bool before = viewSwitches.*viewSwitch;
        EXPECT_EQ(box->isChecked(), before) << box->text().toStdString();
        box->click();
        EXPECT_EQ(viewSwitches.*viewSwitch, !before) << box->text().toStdString();
        {
            const Raised placing(form.parts().drag.IsPlacing);
            box->click();
            EXPECT_EQ(viewSwitches.*viewSwitch, box == toolbox.chk_SnapGrid ? before : !before)
                << box->text().toStdString();
        }
        viewSwitches.*viewSwitch = before;
    }
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(ToolboxTest, SwitchesShowOnTheCanvas) {
    Add("Button1", TypeButton, {10, 10, 20, 20});
    Show();
    form.PlaceAnchors(&form.host().Element[1], false);
    toolbox.chk_ShowElements->click();
    EXPECT_FALSE(form.host().Element[1].isVisible());
    EXPECT_FALSE(form.parts().anchors.Anchor[0]->isVisible());
    toolbox.chk_ShowElements->click();
    EXPECT_TRUE(form.host().Element[1].isVisible());
    toolbox.chk_ShowLines->click();
    EXPECT_TRUE(form.parts().points.cPoint[4].isVisible());
    toolbox.chk_ShowPoints->click();
    EXPECT_FALSE(form.parts().points.cPointMover[1].isVisible());
    const int before = grids;
    toolbox.chk_ShowGrid->click();
    EXPECT_EQ(grids, before + 1);
}

TEST_F(ToolboxTest, ASpacingIsAWholeNumberFromOne) {
    const std::pair<const char*, int> rows[] = {{"abc", 1}, {"-5", 1},          {"012", 12}, {"0", 1},
                                                {"25", 25}, {"99999999999", 1}, {"7.5", 8},  {" ", 1}};
    for (const auto& [text, spacing] : rows) {
        Type(toolbox.tbx_GridX, text);
        EXPECT_EQ(viewSwitches.GridX, spacing) << text;
        EXPECT_EQ(toolbox.tbx_GridX->text(), QString::number(spacing)) << text;
    }
    EXPECT_EQ(viewSwitches.GridY, 10);
    Type(toolbox.tbx_GridY, "4");
    EXPECT_EQ(viewSwitches.GridY, 4);
    EXPECT_GT(grids, 0);
}

TEST_F(ToolboxTest, TheOtherButtons) {
    objSkin->SkinWidth = 700;
    Click(toolbox.btn_ResetView);
    EXPECT_EQ(form.width(), 700);
    Click(toolbox.btn_Preview);
    EXPECT_EQ(windows.previews, 1);
}

TEST_F(ToolboxTest, ItComesBackWhereItWas) {
    EXPECT_EQ(toolbox.TwipBounds().left, 15);
    EXPECT_EQ(toolbox.TwipBounds().top, 765);
    toolbox.move(200, 120);
    toolbox.close();
    EXPECT_EQ(settings::ToolboxLeft.Read(), 3000);
    EXPECT_EQ(settings::ToolboxTop.Read(), 1800);
    SaveSetting("Toolbox", "Top", "high up");
    viewSwitches.GridX = 33;
    viewSwitches.SnapGrid = true;
    toolbox.Open();
    EXPECT_EQ(toolbox.TwipBounds().left, 3000);
    EXPECT_EQ(toolbox.TwipBounds().top, 765);
    EXPECT_EQ(toolbox.tbx_GridX->text(), "33");
    EXPECT_TRUE(toolbox.chk_SnapGrid->isChecked());
}

TEST_F(ToolboxTest, ADroppedSkinIsOpenedAndAFailureTold) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/skins/Blue")});
    const auto drop = [&] {
        QDragEnterEvent entering({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &entering);
        EXPECT_TRUE(entering.isAccepted());
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &event);
    };
    drop();
    EXPECT_EQ(windows.opened, "/skins/Blue");
    EXPECT_TRUE(prompts_.asked.empty());
    windows.failure = "no such disk";
    drop();
    ASSERT_EQ(prompts_.asked.size(), 1u);
    EXPECT_EQ(prompts_.asked[0], "Loading Skin Error: no such disk");
}

TEST_F(ToolboxTest, TheTabKeyVisitsAllAndEachHasAName) {
    int visited = 0;
    for (QWidget* next = toolbox.nextInFocusChain(); next != &toolbox; next = next->nextInFocusChain()) {
        if (!(next->focusPolicy() & Qt::TabFocus)) continue;
        ++visited;
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(next);
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << next->objectName().toStdString();
    }
    EXPECT_EQ(visited, 15);
}

}  // namespace
}  // namespace ornavo::testing
