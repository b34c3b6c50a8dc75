// SPDX-License-Identifier: MIT
// The properties panel beside the canvas, on a skin with an element of each type, all preferences and a
// corner; its rows worked as the window system works them.
#pragma once

#include <QClipboard>
#include <sstream>

#include "base/files.h"
#include "document/codes.h"
#include "document/skin_lines.h"
#include "properties/frm_properties.h"
#include "render/redraw.h"
#include "support/canvas_fixture.h"
#include "support/step_layer.h"

namespace ornavo::testing {

using Snapshot = std::map<std::string, std::string>;  // "Key.Field" and its value

/// All that a file of the skin has of the preferences, the elements and the corners.
inline Snapshot SnapshotOf(const dbSkin& skin) {
    Snapshot fields;
    std::istringstream lines(skin.FileBytes());
    std::string owner, font;
    for (std::string line; std::getline(lines, line);) {
        const auto [tag, value] = GetTag(TrimTag(line));
        if (tag == "Font" || tag == "/Font") font = tag == "Font" ? "Font." : "";
        if (tag == "Key") owner = *value;
        if (tag == "Order" && owner == "K") owner += *value;
        if (tag == "Point") owner = "K";
        if (value) fields[owner + "." + font + std::string(tag)] = *value;
    }
    return fields;
}

/// The fields in which the two differ.
inline std::set<std::string> Differences(const Snapshot& a, const Snapshot& b) {
    std::vector<Snapshot::value_type> differing;
    std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(differing));
    std::set<std::string> names;
    for (const auto& [name, value] : differing) names.insert(name);
    return names;
}

class RowEditTest : public EditingTest {
protected:
    RowEditTest() {
        objSkin->SetupSkinPrefs();
        Picture("old.png", Qt::darkGreen, 40, 30);
        Picture("new.bmp", Qt::darkRed, 40, 30);
        const struct {
            const char* key;
            Rect place;
            bool hasPicture;
        } elements[] = {{"Main", {20, 20, 400, 500}, false},    {"Button1", {430, 20, 100, 60}, true},
                        {"Picture1", {540, 20, 100, 60}, true}, {"Volume1", {430, 90, 100, 60}, true},
                        {"Info1", {430, 160, 200, 30}, false},  {"SearchBox", {430, 200, 150, 20}, false},
                        {"Scrollbar", {700, 20, 40, 400}, true}};
        int type = TypeMain;
        for (const auto& row : elements) {
            dbLayoutElement& element = Add(row.key, type++, row.place);
            element.ElementName = row.key;
            element.Visible = true;
            if (row.hasPicture) element.PicNormal = "old.png";
            element.TextColor = 0xFFFFFF;
            element.Caption = "Play";
        }
        for (const Point at : {Point{0, 0}, Point{800, 0}, Point{800, 600}, Point{0, 600}}) AddPoint(at);
        panel_ = std::make_unique<frm_Properties>(form_.get(), windows_, *form_);
        EXPECT_EQ(timer().interval(), 100);
        timer().setInterval(std::chrono::hours(1));  // it fires when the test says so
        windows_.real = panel_.get();
        Compose();
        objSkin->SaveSkin(false);
    }
    ~RowEditTest() override { windows_.real = nullptr; }

    void Select(Control& control) {
        form_->ResetSelection();
        form_->SelectWithAnchors(control);
        Open();
    }
    void Select(const char* element) { Select(ControlOf(Element(element))); }
    /// A sample control, as a click on it does.
    void SelectSample(Control& control) {
        form_->ResetSelection();
        form_->selection().SelectSample(control);
        Open();
    }
    void Open() {
        panel_->Open();
        QApplication::setActiveWindow(panel_.get());  // which no window manager does
    }
    QTimer& timer() { return panel_->tmrUpdate; }
    void Tick() {
        ASSERT_TRUE(timer().isActive());
        Fire(timer());
    }

    // Null when the sheet has no such row.
    RowText* Box(const std::string& key) { return Find(panel_->parts().pools.tbx_Prop, key); }
    RowCheck* Check(const std::string& key) { return Find(panel_->parts().pools.chk_Boolean, key); }
    RowCombo* Combo(const std::string& key) {
        RowFrame* frame = Find(panel_->parts().pools.cboPic, key);
        return frame ? &frame->cboProp : nullptr;
    }
    void Press(QWidget& row, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        row.setFocus();
        QTest::keyClick(panel_->windowHandle(), key, modifiers);
    }
    /// In place of what the box has.
    void Type(RowText& box, const std::string& text) {
        Press(box, Qt::Key_A, Qt::ControlModifier);
        if (text.empty()) Press(box, Qt::Key_Delete);
        for (const char letter : text) QTest::keyClick(panel_->windowHandle(), letter);
    }
    void Paste(RowText& box, const std::string& text) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        Press(box, Qt::Key_A, Qt::ControlModifier);
        Press(box, Qt::Key_V, Qt::ControlModifier);
    }

    dbSkin Stored() const {
        dbSkin skin;
        skin.SetBasePath(objSkin->BasePath());
        skin.SkinName = objSkin->SkinName;
        skin.LoadSkin();
        return skin;
    }
    QImage Canvas(const QRect& part) { return form_->grab(part).toImage(); }

    const StepLayer disk_;  // which needn't last
    std::unique_ptr<frm_Properties> panel_;

private:
    template <class T>
    static T* Find(Pool<T>& pool, const std::string& key) {
        for (int i = 1; i <= pool.Top(); ++i)
            if (pool[i].Tag == key) return &pool[i];
        return nullptr;
    }
};

}  // namespace ornavo::testing
