// SPDX-License-Identifier: MIT
#include "properties/live_update.h"

#include <algorithm>
#include <array>

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "properties/panel_parts.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/redraw.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/style_builders.h"
#include "render/target.h"

namespace ornavo {
namespace {

/// The panel stays open under the user's hands, though what it shows may be hidden by the edit.
void KeepSelection(PanelParts& parts) {
    if (!SelControl) return;
    KeepPropertiesOpen = true;
    SelControl = parts.canvas.PlaceAnchors(SelControl, true);
    KeepPropertiesOpen = false;
}

void RedrawBoundElement(PanelParts& parts) {
    if (const auto* element = std::get_if<dbLayoutElementRef>(&parts.BoundObject); element && *element)
        Attempt([&] { RedrawElement(**element); });
    KeepSelection(parts);
}

void RedrawSongs(PanelParts&) {
    LayoutHost& host = TargetForm->host();
    SetupSongButton(host.but_Song, 0);
    SetupSongButton(host.but_Song2, 1);
    LayoutKioskPanel();
}

void RedrawScrollBar(PanelParts&) {
    if (const dbLayoutElementRef frame = objCurrentLayout->dbLayoutElements->Find("Scrollbar"))
        SetupScrollBar(TargetForm->host().ScrollBar, *frame);
}

struct Redraw {
    std::string_view name;  // of the selected control
    void (*draw)(PanelParts&);
};
constexpr std::array Redraws = {
    Redraw{"Element", RedrawBoundElement},
    Redraw{"pInfo", RedrawBoundElement},
    Redraw{"pMain", RedrawBoundElement},
    Redraw{"tbx_Search", RedrawBoundElement},
    Redraw{"Scrollframe", RedrawBoundElement},
    Redraw{"btn_SkinProperties",
           [](PanelParts&) {
               TargetForm->ShowGrid();  // the background is one of them
               LayoutKioskPanel();
               SetupKioskPanel();
           }},
    Redraw{"KeyB", [](PanelParts&) { SetupKey(TargetForm->host().KeyB, "KBB"); }},
    Redraw{"KeyN", [](PanelParts&) { SetupKey(TargetForm->host().KeyN, "KBN"); }},
    Redraw{"KeyE", [](PanelParts&) { SetupKey(TargetForm->host().KeyE, "KBE"); }},
    Redraw{"KeyU", [](PanelParts&) { SetupKey(TargetForm->host().KeyU, "KBU"); }},
    Redraw{"KeyS", [](PanelParts&) { SetupKey(TargetForm->host().KeyS, "KBS"); }},
    Redraw{"lbl_SL",
           [](PanelParts&) {
               LayoutKioskPanel();
               SetupSearchLetters();
           }},
    Redraw{"lbl_Kiosk", [](PanelParts&) { SetupKioskLabels(); }},
    Redraw{"ScrollBar", RedrawScrollBar},
    Redraw{"but_AddAll", [](PanelParts&) { SetupAddAllButton(TargetForm->host().but_AddAll); }},
    Redraw{"but_Info",
           [](PanelParts&) {
               SetupInfoButton(TargetForm->host().but_Info);
               LayoutKioskPanel();
           }},
    Redraw{"but_Song", RedrawSongs},
    Redraw{"but_Song2", RedrawSongs},
    Redraw{"but_Picture", [](PanelParts&) { LayoutKioskPanel(); }},
};

}  // namespace

void tmrUpdate_Timer(PanelParts& parts) {
    parts.tmrUpdate.stop();  // first: a composition may hide the panel, which draws what still waits
    const auto row = std::find_if(Redraws.begin(), Redraws.end(), [](const Redraw& redraw) {
        return SelControl && SelControl->Name == redraw.name;
    });
    Attempt([&] { row == Redraws.end() ? UpdateCurrentLayout(parts) : row->draw(parts); });
    objSkin->Dirty = true;
    parts.canvas.UpdateCaption();
}

void UpdateCurrentLayout(PanelParts& parts) {
    objSkin->Dirty = true;
    KeepPropertiesOpen = true;  // what the composition leaves without a control is no reason to close either
    parts.canvas.UpdateCurrentLayout();
    KeepPropertiesOpen = false;
    KeepSelection(parts);
}

}  // namespace ornavo
