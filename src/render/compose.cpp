// SPDX-License-Identifier: MIT
#include "render/compose.h"

#include <array>

#include "base/lookup.h"
#include "document/codes.h"
#include "platform/screen.h"
#include "render/compose_report.h"
#include "render/element_button.h"
#include "render/element_controls.h"
#include "render/element_info.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/shape.h"
#include "render/skin_picture.h"
#include "render/standard_elements.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

/// Gives the element this slot of a pool and returns the slot; -1 for an element without a size, whose slot
/// is free again.
template <class T>
int ClaimSlot(Pool<T>& pool, int slot, dbLayoutElement& element) {
    element.ControlIndex = slot;
    try {
        if (Claim(pool[slot], element)) return slot;
    } catch (const Failure&) {
        pool[slot].setVisible(false);
        throw;
    }
    pool[slot].setVisible(false);
    return -1;
}

void ComposeButton(dbLayoutElement& element, LayoutHost& host, View view) {
    const int slot = ClaimSlot(host.Element, host.GetFreeElement(), element);
    if (slot < 0) return;
    TileButton& button = host.Element[slot];
    button.Reset();
    SetupElementButton(button, element, view);
    Present(button, element.Visible);
}

void ComposeInfo(dbLayoutElement& element, LayoutHost& host, View view) {
    const int slot = ClaimSlot(host.pInfo, host.GetFreeInfo(), element);
    if (slot < 0) return;
    SetupInfoElement(host.pInfo[slot], element, view);
    Present(host.pInfo[slot], element.Visible);
}

void ComposeMain(dbLayoutElement& element, LayoutHost& host, View) {
    if (!ClaimSingle(host.pMain, element)) return;
    SetupMainPanel(host, element);
    SetupKioskPanel();
    LayoutKioskPanel();
    Present(host.pMain, true);
}

void ComposeSearchBox(dbLayoutElement& element, LayoutHost& host, View) {
    ShowSearchBox(element, host);
}

void ComposeScrollframe(dbLayoutElement& element, LayoutHost& host, View) {
    ShowScrollframe(element, host);
}

using ComposeStep = void (*)(dbLayoutElement&, LayoutHost&, View view);
constexpr std::array<ComposeStep, 7> Composings = {ComposeMain,       ComposeButton, ComposeButton,
                                                   ComposeButton,     ComposeInfo,   ComposeSearchBox,
                                                   ComposeScrollframe};

void ComposeElement(dbLayoutElement& element, View view) {
    const auto type =
        static_cast<std::size_t>(element.ElementType);  // a negative type is beyond the table too
    if (type < Composings.size()) Composings[type](element, TargetForm->host(), view);
}

void SetTarget(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight) {
    TargetForm = &form;
    TargetLayout = std::move(layout);
    TargetFrame.DesignWidth = skinWidth;
    TargetFrame.DesignHeight = skinHeight;
    MeasureTarget();
}

}  // namespace

void RenderElements(View view) {
    if (ComposeBusy) return;
    ComposeReport report;
    {
        const Raised busy(ComposeBusy);
        const WaitPointer wait;
        const LookupScope names;
        MeasureTarget();
        TargetForm->host().ClearElements();
        if (TargetLayout && (view == View::Preview || viewSwitches.ShowElements)) {
            PicturesAhead pictures([] { return PicturesOf(*TargetLayout); });
            for (const dbLayoutElementRef& element : *TargetLayout->dbLayoutElements)
                report.Try([&] { ComposeElement(*element, view); });
        }
    }
    report.Show(TargetLayout);
}

void ComposeLayout(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight) {
    SetTarget(form, std::move(layout), skinWidth, skinHeight);
    RenderElements(View::Canvas);
    form.ShowShapePoints();
    form.ShowGrid();
}

void ComposePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight) {
    SetTarget(form, std::move(layout), skinWidth, skinHeight);
    RenderElements(View::Preview);
    Attempt([] { ShapeForm(); });
}

void ReleasePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight) {
    SetTarget(form, std::move(layout), skinWidth, skinHeight);
}

}  // namespace ornavo
