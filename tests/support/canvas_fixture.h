// SPDX-License-Identifier: MIT
// The main window on a skin of a test, and the mouse and keys as the window system brings them.
#pragma once

#include <QTest>
#include <QTimerEvent>

#include "canvas/frm_ornavo.h"
#include "document/codes.h"
#include "support/recorded_windows.h"
#include "support/scripted_prompts.h"
#include "support/skin_fixture.h"

namespace ornavo::testing {

/// Lets a running timer tick at once.
inline void Fire(QTimer& timer) {
    QTimerEvent event(timer.timerId());
    QCoreApplication::sendEvent(&timer, &event);
}

/// A canvas of 800 x 600 for a skin of that size, shown, with nothing selected.
class EditingTest : public SkinTest {
protected:
    EditingTest() {
        objSkin->SkinWidth = 800;
        objSkin->SkinHeight = 600;
        form_ = std::make_unique<frm_Ornavo>(windows_, "0.1");
        form_->Start("");
        Compose();
    }
    ~EditingTest() override { TargetLayout.reset(); }
    void Compose() {
        form_->UpdateCurrentLayout();
        form_->tmrResizer.stop();
        QCoreApplication::processEvents();
    }
    static dbLayoutElement& Element(const char* key) {
        return *objCurrentLayout->dbLayoutElements->Item(key);
    }
    /// Another corner of the shape, the next in order; it is shown by the next composition.
    static dbPoint& AddPoint(Point at) {
        dbPoint& point = *objCurrentLayout->dbPoints->Add(objCurrentLayout->dbPoints->Count() + 1);
        point.X = at.x;
        point.Y = at.y;
        return point;
    }
    LayoutHost& host() { return form_->host(); }
    Control* SelControl() { return form_->selection().SelControl(); }
    const std::string& SelKey() { return form_->selection().SelKey(); }
    Anchors& anchors() { return form_->parts().anchors; }

    void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(form_->windowHandle(), button, {}, {x, y});
    }
    void MoveTo(int x, int y) { QTest::mouseMove(form_->windowHandle(), {x, y}); }
    void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(form_->windowHandle(), button, {}, {x, y});
    }
    void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
        Press(x, y, button);
        Release(x, y, button);
    }
    void Drag(QPoint from, QPoint by) {
        Press(from.x(), from.y());
        MoveTo(from.x() + by.x() / 2, from.y() + by.y() / 2);
        MoveTo(from.x() + by.x(), from.y() + by.y());
        Release(from.x() + by.x(), from.y() + by.y());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(form_->windowHandle(), key, modifiers);
    }
    static Rect Fields(const dbLayoutElement& e) { return {e.LeftX, e.TopY, e.WidthX, e.HeightY}; }
    static std::string Keys() {
        std::string keys;
        for (const dbLayoutElementRef& e : *objCurrentLayout->dbLayoutElements)
            keys += (keys.empty() ? "" : " ") + e->Key;
        return keys;
    }

    ScriptedPrompts prompts_;
    RecordedWindows windows_;
    std::unique_ptr<frm_Ornavo> form_;
};

}  // namespace ornavo::testing
