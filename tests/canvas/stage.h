// SPDX-License-Identifier: MIT
// The main window on the screen with one layout, and the mouse over it, hit by place as a user does.
#pragma once

#include <QTest>
#include <QWindow>

#include "canvas/frm_ornavo.h"
#include "editor/selection.h"
#include "support/scripted_prompts.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {

class PanelOfNotes : public PropertiesPanel {
public:
    void Open() override { notes += "open "; }
    void UnloadProperties() override { notes += "unload "; }
    void Hide() override { notes += "hide "; }
    std::string notes;
};

class WindowsOfNotes : public Windows {
public:
    void LoadDebug(std::string_view skinName) override {
        opened = skinName;
        if (!failure.empty()) throw Failure(513, "LoadSkin", failure);
    }
    void UnloadOthers() override {}
    void ShowPreview() override { ++previews; }
    PropertiesPanel& properties() override { return panel; }
    PanelOfNotes panel;
    std::string opened, failure;
    int previews = 0;
};

/// The skin is as large as the window, 800 by 600, and its shape a rectangle in the middle.
class StageTest : public SkinTest {
protected:
    StageTest() : form(windows, "0.1") {
        objSkin->SkinWidth = 800;
        objSkin->SkinHeight = 600;
        for (const Point at : {Point{200, 150}, {200, 450}, {600, 450}, {600, 150}}) AddPoint(at);
        form.Start("");
        Show();
    }
    ~StageTest() override {
        SelControl = nullptr;
        SelKey.clear();
    }
    void Show() {
        form.UpdateCurrentLayout();
        QCoreApplication::processEvents();
    }
    dbPoint& AddPoint(Point at) const {
        dbPoint& point = *objCurrentLayout->dbPoints->Add(objCurrentLayout->dbPoints->Count() + 1);
        point.X = at.x;
        point.Y = at.y;
        return point;
    }
    dbPoint& PointOf(int order) const { return *objCurrentLayout->dbPoints->GetFromOrder(order); }
    void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(form.windowHandle(), button, {}, {x, y});
    }
    void MoveTo(int x, int y) { QTest::mouseMove(form.windowHandle(), {x, y}); }
    void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(form.windowHandle(), button, {}, {x, y});
    }
    void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        Press(x, y, button);
        Release(x, y, button);
    }

    ScriptedPrompts prompts_;
    WindowsOfNotes windows;
    frm_Ornavo form;
};

}  // namespace ornavo::testing
