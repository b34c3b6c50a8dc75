// SPDX-License-Identifier: MIT
#include "render/redraw.h"

#include <array>

#include "document/codes.h"
#include "render/element_button.h"
#include "render/element_controls.h"
#include "render/element_info.h"
#include "render/kiosk_panel.h"
#include "render/sample_families.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/style_builders.h"
#include "render/target.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

/// The element's own slot, or a free one if another element has taken it in the meantime.
template <class T>
T& SlotOf(Pool<T>& pool, dbLayoutElement& element) {
    const int slot = element.ControlIndex;
    if (slot >= 1 && slot <= pool.Top() && (pool[slot].Tag == element.Key || pool[slot].Tag.empty()))
        return pool[slot];
    element.ControlIndex = pool.GetFree();
    T& fresh = pool[element.ControlIndex];
    fresh.setVisible(false);
    return fresh;
}

bool ClaimOrHide(Control& control, const dbLayoutElement& element) {
    if (Claim(control, element)) return true;
    control.setVisible(false);
    return false;
}

void RedrawMain(dbLayoutElement& element, LayoutHost& host) {
    if (!ClaimSingle(host.pMain, element)) return;
    SetupMainPanel(host, element);
    LayoutKioskPanel();
}

void RedrawButton(dbLayoutElement& element, LayoutHost& host) {
    TileButton& button = SlotOf(host.Element, element);
    if (!ClaimOrHide(button, element)) return;
    SetupElementButton(button, element, View::Canvas);
    button.setVisible(element.Visible);
}

void RedrawInfo(dbLayoutElement& element, LayoutHost& host) {
    PictureBox& box = SlotOf(host.pInfo, element);
    if (!ClaimOrHide(box, element)) return;
    SetupInfoElement(box, element, View::Canvas);
    box.setVisible(element.Visible);
}

using RedrawStep = void (*)(dbLayoutElement&, LayoutHost&);
constexpr std::array<RedrawStep, 7> Redraws = {RedrawMain, RedrawButton,  RedrawButton,   RedrawButton,
                                               RedrawInfo, ShowSearchBox, ShowScrollframe};

Control& HostOf(dbLayoutElement& element, LayoutHost& host) {
    switch (element.ElementType) {
        case TypeMain:
            return host.pMain;
        case TypeInfo:
            return SlotOf(host.pInfo, element);
        case TypeSearchBox:
            return host.tbx_Search;
        case TypeScrollbar:
            return host.Scrollframe;
        default:
            return SlotOf(host.Element, element);
    }
}

}  // namespace

Control& ControlOf(dbLayoutElement& element) {
    Control& control = HostOf(element, TargetForm->host());
    control.Tag = element.Key;
    return control;
}

void RedrawElement(dbLayoutElement& element) {
    if (!viewSwitches.ShowElements) return;
    const auto type = static_cast<std::size_t>(element.ElementType);  // a negative type is beyond it
    if (type < Redraws.size()) Redraws[type](element, TargetForm->host());
}

bool RedrawSample(const SampleFamily& family) {
    SamplePanel& sample = TargetForm->host().sample;
    switch (family.redraw) {
        case Redraw::Layout:
            return false;
        case Redraw::Panel:
            TargetForm->ShowGrid();  // because the canvas's background is a preference of this family
            LayoutKioskPanel();
            SetupKioskPanel();
            break;
        case Redraw::Button:
            StyleButton(sample, family);
            break;
        case Redraw::Places:
            for (const SampleFamily& one : SampleFamilies())
                if (one.prefix == family.prefix) StyleButton(sample, one);
            LayoutKioskPanel();
            break;
        case Redraw::Letters:
            LayoutKioskPanel();
            SetupSearchLetters();
            break;
        case Redraw::Labels:
            SetupKioskLabels();
    }
    return true;
}

}  // namespace ornavo
