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

/// Keeps the panel open while the user types in it, even if the edit hides the selected control.
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
    // First, because a composition may hide the panel, which would draw the waiting edits again.
    parts.tmrUpdate.stop();
    Attempt([&] { RedrawSelected(parts); });
    objSkin->Dirty = true;
    parts.canvas.UpdateCaption();
}

void UpdateCurrentLayout(PanelParts& parts) {
    objSkin->Dirty = true;
    // Nor must the panel close if the composition leaves the selection without a control.
    const Raised open = parts.selection.KeepPropertiesOpen();
    parts.canvas.UpdateCurrentLayout();
    KeepSelection(parts);
}

}  // namespace ornavo
