// SPDX-License-Identifier: MIT
// The panel on a skin with the catalogue and a layout of four elements, and a control to select.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWheelEvent>

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "editor/settings_keys.h"
#include "properties/element_sheet.h"
#include "properties/frm_properties.h"
#include "properties/pref_sheet.h"

namespace ornavo::testing {

template <std::size_t N>
QStringList Names(const std::array<std::string_view, N>& names) {
    QStringList list;
    for (const std::string_view name : names) list += QString::fromStdString(std::string(name));
    return list;
}

class SheetTest : public ::testing::Test, public Windows {
protected:
    SheetTest() : panel_(nullptr, *this, canvas_) {
        objSkin = std::make_shared<dbSkin>();
        objCurrentLayout = objSkin->AddNewLayout("Standard");
        const auto& elements = *objCurrentLayout->dbLayoutElements;
        elements.Item("SearchBox")->ElementName = "Search";
        elements.Item("Scrollbar")->ElementName = "Scroll";
        elements.Item("SearchBox")->Visible = elements.Item("Scrollbar")->Visible = false;
        element_ = objCurrentLayout->dbLayoutElements->Add(4, "Button1", TypeButton, 0);
        element_->ElementName = "Play";
    }
    ~SheetTest() override {
        SelControl = nullptr;
        panel_.tmrUpdate.stop();
    }
    void LoadDebug(std::string_view) override {}
    void UnloadOthers() override {}

    void Select(const char* name, const char* tag = "") {
        selected_.Name = name;
        selected_.Tag = *tag ? tag : selected_.Name == "pMain" ? "Main" : "Button1";
        SelControl = &selected_;
        panel_.Open();
    }
    dbLayoutElement& element() { return *element_; }
    RowPools& pools() { return panel_.parts().pools; }
    template <class T>
    static T* WithTag(const Pool<T>& pool, std::string_view key) {
        for (int i = 1; i <= pool.Top(); ++i)
            if (pool[i].Tag == key) return &pool[i];
        return nullptr;
    }
    RowText* Box(std::string_view key) { return WithTag(pools().tbx_Prop, key); }
    RowCheck* Check(std::string_view key) { return WithTag(pools().chk_Boolean, key); }
    RowCombo* Combo(std::string_view key) {
        RowFrame* frame = WithTag(pools().cboPic, key);
        return frame ? &frame->cboProp : nullptr;
    }

    struct CountingCanvas : Canvas {
        void UpdateCurrentLayout() override { ++composed; }
        void UpdateCaption() override {}
        void ResetFormToOriginal() override {}
        int composed = 0;
    } canvas_;
    Control selected_{nullptr, ""};
    dbLayoutElementRef element_;
    frm_Properties panel_;
};

}  // namespace ornavo::testing
