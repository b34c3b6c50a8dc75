// SPDX-License-Identifier: MIT
#include "canvas/element_families.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr std::array Families = {
    ElementFamily{"Element", DragElement, 1, false, false},
    ElementFamily{"pMain", DragMain, 0, true, true},
    ElementFamily{"pInfo", DragInfo, 0, true, false},
    ElementFamily{"tbx_Search", DragSearchBox, 0, true, true},
    ElementFamily{"Scrollframe", DragScrollframe, 1, true, true},
    ElementFamily{"ScrollBar", DragScrollframe, 1, true, true},
};

}  // namespace

const ElementFamily* FamilyOf(const Control& control) {
    const auto found = std::find_if(Families.begin(), Families.end(),
                                    [&](const ElementFamily& family) { return family.name == control.Name; });
    return found == Families.end() ? nullptr : &*found;
}

void ScrollBarFollows(CanvasParts& parts) {
    if (!SelControl || SelControl->Name != "Scrollframe") return;
    TileButton& bar = parts.host.ScrollBar;
    bar.SetBackColor(0);
    bar.Refresh();
    bar.Move(ScrollBarRect(SelControl->Bounds()));
    bar.ZOrder();
    bar.setVisible(true);
}

void PanelFollows(CanvasParts& parts) {
    if (!objCurrentLayout) return;
    if (const dbLayoutElementRef main = objCurrentLayout->dbLayoutElements->Find(SelKey))
        DrawMainBackground(parts.host, main->StretchBackground);
    LayoutKioskPanel();
    SetupSearchLetters();
}

void WriteSelectedBounds(CanvasParts& parts) {
    if (!SelControl || !objCurrentLayout) return;
    const Raised placing(parts.drag.IsPlacing);
    if (const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Find(SelKey))
        Attempt([&] { WriteElementBounds(*element, SelControl->Bounds(), TargetFrame); });
}

void FocusForm(CanvasParts& parts) {
    if (!parts.form.isActiveWindow()) parts.form.activateWindow();
    parts.form.setFocus();
}

void MarkDirty(CanvasParts& parts) {
    objSkin->Dirty = true;
    parts.canvas.UpdateCaption();
}

}  // namespace ornavo
