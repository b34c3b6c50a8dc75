// SPDX-License-Identifier: MIT
#include "canvas/frm_toolbox.h"

#include <QCheckBox>
#include <QLineEdit>

#include "canvas/new_elements.h"
#include "check/check.h"
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
    frm_Toolbox toolbox;
    int grids = 0;
};

TEST_F(ToolboxTest, WhatIsAddedOrClonedIsSelectedAndHasASheetOfItsOwn) {
    for (const auto& [add, key, bounds] : {std::tuple{toolbox.btn_AddButton, "Button1", Rect{25, 25, 50, 50}},
                                           {toolbox.btn_AddGraphic, "Graphic1", {25, 25, 50, 50}},
                                           {toolbox.btn_AddVolume, "Volume1", {725, 25, 50, 50}},
                                           {toolbox.btn_AddInfo, "Info1", {100, 20, 400, 50}}}) {
        QApplication::setActiveWindow(&toolbox);
        add->PerformClick();
        EXPECT_EQ(SelKey(), key);
        ASSERT_TRUE(SelControl());
        EXPECT_EQ(SelControl()->Tag, key);
        EXPECT_EQ(SelControl()->Bounds(), bounds);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == form_.get(); }, 1000))
            << "arrows and Delete reach it";
    }
    dbLayoutElement& info = Element("Info1");
    info.Font = std::make_shared<Font>();
    info.InfoField = "Now";
    CloneElement(form_->parts());
    ASSERT_EQ(SelKey(), "Info2");
    const dbLayoutElement& clone = Element("Info2");
    EXPECT_EQ(clone.ElementName + ", " + clone.InfoField, "Clone of Info1, Now");
    EXPECT_EQ(clone.Font, info.Font) << "one font serves both";
    EXPECT_EQ(clone.Order, 5);
    EXPECT_TRUE(windows_.panel.unloaded == 5 && windows_.panel.opened == 5);
    toolbox.chk_ShowElements->click();
    toolbox.btn_AddButton->PerformClick();
    EXPECT_TRUE(SelControl() && SelControl()->isHidden() && windows_.panel.shown);
    toolbox.chk_ShowElements->click();
    EXPECT_TRUE(SelKey() == "Button2" && anchors().Anchor[0]->isVisible()) << "added unseen";
    objCurrentLayout = std::make_shared<dbLayout>();
    AddElement(form_->parts(), TypeButton);
    EXPECT_EQ(objCurrentLayout->dbLayoutElements->Count(), 0) << "no layout is open";
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
        const bool before = viewSwitches.*row.viewSwitch;
        const int painted = grids;
        row.box->click();
        EXPECT_EQ(viewSwitches.*row.viewSwitch, !before) << row.shown;
        EXPECT_EQ(shown(), row.shown);
        EXPECT_EQ(grids - painted, row.box == toolbox.chk_ShowGrid ? 1 : 0) << row.shown;
        row.box->click();
        EXPECT_TRUE(viewSwitches.*row.viewSwitch == before && host().Element[1].isVisible()) << row.shown;
    }
    EXPECT_FALSE(objSkin->Dirty);
}

TEST_F(ToolboxTest, ASpacingIsAWholeNumberFromOne) {
    const std::pair<const char*, int> rows[] = {
        {"abc", 1}, {"-5", 1}, {"012", 12}, {"99999999999", 1}, {"7.5", 8}};
    for (const bool across : {true, false})
        for (const auto& [text, spacing] : rows) {
            QLineEdit* box = across ? toolbox.tbx_GridX : toolbox.tbx_GridY;
            box->setFocus();
            viewSwitches.GridX = viewSwitches.GridY = 3;
            box->setText(text);
            QTest::keyClick(box, Qt::Key_Return);
            EXPECT_EQ(viewSwitches.GridX, across ? spacing : 3) << text;
            EXPECT_EQ(viewSwitches.GridY, across ? 3 : spacing) << text;
            EXPECT_EQ(box->text(), QString::number(spacing)) << text;
        }
    EXPECT_GT(grids, 0);
}

TEST_F(ToolboxTest, ItComesBackWhereItWas) {
    EXPECT_EQ(toolbox.pos(), QPoint(1, 51));
    toolbox.move(200, 120);
    toolbox.close();
    EXPECT_TRUE(settings::ToolboxLeft.Read() == 3000 && settings::ToolboxTop.Read() == 1800);
    viewSwitches.GridX = 33;
    viewSwitches.SnapGrid = true;
    toolbox.Open();
    EXPECT_EQ(toolbox.pos(), QPoint(200, 120));
    EXPECT_EQ(toolbox.tbx_GridX->text(), "33");
    EXPECT_TRUE(toolbox.chk_SnapGrid->isChecked());
}

/// A skin that has just been created, and each of the toolbox's adders.
TEST_F(ToolboxTest, WhatTheProgramMakesIsRight) {
    objSkin->dbLayouts = std::make_shared<dbLayouts>();
    for (const char* key : {"Admin-Mode", "Kiosk-Mode"}) {
        objCurrentLayout = objSkin->AddNewLayout(key);
        objCurrentLayout->AddDummyPoints();
        for (const ElementTypeCode type : {TypeButton, TypePicture, TypeVolume, TypeInfo})
            AddElement(form_->parts(), type);
    }
    objSkin->SaveSkin(false);
    for (const Finding& finding : CheckSkin(*objSkin))
        EXPECT_EQ(NameOf(finding.kind->severity), "hint") << finding.text;
}

}  // namespace
}  // namespace ornavo::testing
