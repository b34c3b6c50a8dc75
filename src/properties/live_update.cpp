// SPDX-License-Identifier: MIT
#include "properties/live_update.h"

#include "document/current_skin.h"
#include "editor/selection.h"
#include "properties/panel_parts.h"

namespace ornavo {

void tmrUpdate_Timer(PanelParts& parts) {
    UpdateCurrentLayout(parts);
    parts.tmrUpdate.stop();
    parts.canvas.UpdateCaption();
}

void UpdateCurrentLayout(PanelParts& parts) {
    objSkin->Dirty = true;
    parts.canvas.UpdateCurrentLayout();
    KeepPropertiesOpen = true;
    if (SelControl) SelControl = parts.canvas.PlaceAnchors(SelControl, true);
    KeepPropertiesOpen = false;
}

}  // namespace ornavo
