// SPDX-License-Identifier: MIT
#include "canvas/element_families.h"

#include <QApplication>

#include "base/failure.h"
#include "document/current_skin.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/target.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

template <class T>
Control* InPool(const Pool<T>& pool, const std::string& tag) {
    for (int i = 1; i <= pool.Top(); ++i)
        if (pool[i].Tag == tag) return &pool[i];
    return nullptr;
}

}  // namespace

Control* ElementControl(LayoutHost& host, const std::string& key) {
    for (Control* single : {static_cast<Control*>(&host.pMain), static_cast<Control*>(&host.tbx_Search),
                            static_cast<Control*>(&host.Scrollframe)})
        if (!single->isHidden() && single->Tag == key) return single;
    Control* found = InPool(host.Element, key);
    return found ? found : InPool(host.pInfo, key);
}

bool ElementsAreHidden(const Control& control) {
    return !viewSwitches.ShowElements && FamilyOf(control);
}

dbLayoutElementRef SelectedElement(const CanvasParts& parts) {
    if (!parts.selection.SelControl() || !objCurrentLayout) return nullptr;
    return objCurrentLayout->dbLayoutElements->Find(parts.selection.SelKey());
}

void ScrollBarFollows(CanvasParts& parts) {
    if (parts.selection.SelControl() != &parts.host.Scrollframe) return;
    TileButton& bar = parts.host.ScrollBar;
    bar.SetBackColor(0);
    bar.Refresh();
    bar.Move(ScrollBarRect(parts.host.Scrollframe.Bounds()));
    bar.ZOrder();
    bar.setVisible(true);
}

void PanelFollows(CanvasParts& parts) {
    if (!objCurrentLayout) return;
    if (const dbLayoutElementRef main = SelectedElement(parts))
        DrawMainBackground(parts.host, main->StretchBackground);
    LayoutKioskPanel();
    SetupSearchLetters();
}

void WriteSelectedBounds(CanvasParts& parts) {
    const Raised placing = parts.drag.Placing();
    if (const dbLayoutElementRef element = SelectedElement(parts))
        Attempt([&] { WriteElementBounds(*element, parts.selection.SelControl()->Bounds(), TargetFrame); });
}

void FocusForm(CanvasParts& parts) {
    // For Qt, a window is active while one of its tool windows is active; the focus would stay there.
    if (QApplication::activeWindow() != &parts.form) parts.form.activateWindow();
    parts.form.setFocus();
}

void MarkDirty(CanvasParts& parts) {
    objSkin->Dirty = true;
    parts.canvas.UpdateCaption();
}

}  // namespace ornavo
