// SPDX-License-Identifier: MIT
#include "properties/live_update.h"

#include "base/failure.h"
#include "document/current_skin.h"
#include "properties/panel_parts.h"
#include "render/element_kinds.h"
#include "render/redraw.h"
#include "render/sample_families.h"

namespace ornavo {
namespace {

/// The panel stays open under the user's hands, though what it shows may be hidden by the edit.
void KeepSelection(PanelParts& parts) {
    if (!parts.selection.SelControl()) return;
    const Raised open = parts.selection.KeepPropertiesOpen();
    parts.canvas.PlaceAnchors();
}

void RedrawBoundElement(PanelParts& parts) {
    if (const auto* element = std::get_if<dbLayoutElementRef>(&parts.BoundObject); element && *element)
        Attempt([&] { RedrawElement(**element); });
    KeepSelection(parts);
}

void RedrawSelected(PanelParts& parts) {
    const Control* selected = parts.selection.SelControl();
    if (selected && FamilyOf(*selected)) return RedrawBoundElement(parts);
    const SampleFamily* family = selected ? FindSample(selected->Name) : nullptr;
    if (!family || !RedrawSample(*family)) UpdateCurrentLayout(parts);
}

}  // namespace

void tmrUpdate_Timer(PanelParts& parts) {
    parts.tmrUpdate.stop();  // first: a composition may hide the panel, which draws what still waits
    Attempt([&] { RedrawSelected(parts); });
    objSkin->Dirty = true;
    parts.canvas.UpdateCaption();
}

void UpdateCurrentLayout(PanelParts& parts) {
    objSkin->Dirty = true;
    // What the composition leaves without a control is no reason to close either.
    const Raised open = parts.selection.KeepPropertiesOpen();
    parts.canvas.UpdateCurrentLayout();
    KeepSelection(parts);
}

}  // namespace ornavo
