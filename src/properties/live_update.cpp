// SPDX-License-Identifier: MIT
#include "properties/live_update.h"

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "properties/panel_parts.h"
#include "render/element_kinds.h"
#include "render/redraw.h"
#include "render/sample_families.h"

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

void RedrawSelected(PanelParts& parts) {
    if (SelControl && FamilyOf(*SelControl)) return RedrawBoundElement(parts);
    const SampleFamily* family = SelControl ? FindSample(SelControl->Name) : nullptr;
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
    KeepPropertiesOpen = true;  // what the composition leaves without a control is no reason to close either
    parts.canvas.UpdateCurrentLayout();
    KeepPropertiesOpen = false;
    KeepSelection(parts);
}

}  // namespace ornavo
