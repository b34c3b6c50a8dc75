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
    static void Type(QLineEdit* box, const char* text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(text));
        QTest::keyClick(box, Qt::Key_Return);
    }
    frm_Toolbox toolbox;
    int grids = 0;
};

TEST_F(ToolboxTest, WhatIsAddedOrClonedIsSelectedAndHasASheetOfItsOwn) {
    for (TileCommand* add :
         {toolbox.btn_AddButton, toolbox.btn_AddGraphic, toolbox.btn_AddVolume, toolbox.btn_AddInfo}) {
        QApplication::setActiveWindow(&toolbox);
        Click(add);
        EXPECT_EQ(SelKey(), Last().Key);
        ASSERT_TRUE(SelControl());
        EXPECT_EQ(SelControl()->Tag, SelKey());
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == form_.get(); }, 1000))
            << "arrows and Delete reach it";
    }
    EXPECT_EQ(SelControl()->Bounds(), (Rect{100, 20, 400, 50}));
    dbLayoutElement& source = Element("Info1");
    source.ElementName = "Song";
    source.Font = std::make_shared<Font>();
    source.InfoField = "Now";
    CloneElement(form_->parts());
    const dbLayoutElement& clone = Last();
    EXPECT_EQ(clone.Key + ", " + clone.ElementName + ", " + clone.InfoField, "Info2, Clone of Song, Now");
    EXPECT_EQ(clone.Order, 5);
    EXPECT_EQ(clone.Font, source.Font) << "one font serves both";
    EXPECT_EQ(SelKey(), "Info2");
    EXPECT_EQ(windows_.panel.unloaded, 5);
    EXPECT_EQ(windows_.panel.opened, 5);
}

TEST_F(ToolboxTest, WhatCannotBeAddedOrClonedChangesNothing) {
    Add("Main", TypeMain, {100, 100, 200, 200});
    Compose();
    CloneElement(form_->parts());
    form_->SelectWithAnchors(form_->host().pMain);
    CloneElement(form_->parts());
    AddElement(form_->parts(), 0);
    AddElement(form_->parts(), 5);
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

TEST_F(ToolboxTest, WhatIsAddedUnseenIsTheSelectionAllTheSame) {
    toolbox.chk_ShowElements->click();
    Click(toolbox.btn_AddButton);
    EXPECT_EQ(SelKey(), "Button1");
    EXPECT_TRUE(SelControl() && SelControl()->isHidden() && windows_.panel.shown);
    Compose();
    toolbox.chk_ShowElements->click();
    EXPECT_EQ(SelKey(), "Button1");
    EXPECT_TRUE(anchors().Anchor[0]->isVisible());
}

TEST_F(ToolboxTest, EachBoxTurnsItsSwitchAndNothingElse) {
    const std::pair<QCheckBox*, bool ViewSwitches::*> rows[] = {
        {toolbox.chk_ShowShape, &ViewSwitches::ShowShape},
        {toolbox.chk_ShapeInverted, &ViewSwitches::ShapeInverted},
        {toolbox.chk_ShowElements, &ViewSwitches::ShowElements},
        {toolbox.chk_ShowPoints, &ViewSwitches::ShowPoints},
        {toolbox.chk_ShowLines, &ViewSwitches::ShowLines},
        {toolbox.chk_ShowGrid, &ViewSwitches::ShowGrid},
        {toolbox.chk_SnapGrid, &ViewSwitches::SnapGrid}};
    for (const auto& [box, viewSwitch] : rows) {
        const bool before = viewSwitches.*viewSwitch;
        EXPECT_EQ(box->isChecked(), before) << box->text().toStdString();
        box->click();
        EXPECT_EQ(viewSwitches.*viewSwitch, !before) << box->text().toStdString();
        {
            const Raised placing = form_->parts().drag.Placing();
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
    objCurrentLayout->AddDummyPoints();
    Compose();
    form_->SelectWithAnchors(form_->host().Element[1]);
    toolbox.chk_ShowElements->click();
    EXPECT_FALSE(form_->host().Element[1].isVisible());
    EXPECT_FALSE(form_->parts().anchors.Anchor[0]->isVisible());
    toolbox.chk_ShowElements->click();
    EXPECT_TRUE(form_->host().Element[1].isVisible());
    toolbox.chk_ShowLines->click();
    EXPECT_TRUE(form_->parts().points.cPoint[4].isVisible());
    toolbox.chk_ShowPoints->click();
    EXPECT_FALSE(form_->parts().points.cPointMover[1].isVisible());
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
    EXPECT_EQ(toolbox.tbx_GridX->toolTip(), "Grid spacing in pixels, across");
    EXPECT_TRUE(toolbox.chk_SnapGrid->isChecked());
}

TEST_F(ToolboxTest, ADroppedSkinIsOpenedAndAFailureTold) {
    Picture("back.bmp", Qt::blue);
    const auto drop = [&](const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent entering({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &entering);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&toolbox, &event);
        return entering.isAccepted();
    };
    for (const char* other : {"back.bmp", "", "gone"}) EXPECT_FALSE(drop(Path(other))) << other;
    EXPECT_EQ(windows_.opened, "");
    ASSERT_TRUE(QFile::copy(Path("back.bmp"), Path("skinsettings.XML")));
    for (const char* skin : {"", "skinsettings.XML"}) {
        EXPECT_TRUE(drop(Path(skin))) << skin;
        EXPECT_EQ(windows_.opened, Path(skin).toStdString());
    }
    EXPECT_TRUE(prompts_.asked.empty());
    windows_.failure = "no such disk";
    drop(Path(""));
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
    EXPECT_EQ(visited, 16);
}

}  // namespace
}  // namespace ornavo::testing
