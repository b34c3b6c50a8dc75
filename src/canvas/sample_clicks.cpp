// SPDX-License-Identifier: MIT
#include "canvas/sample_clicks.h"

#include "canvas/anchors.h"
#include "render/layout_host.h"
#include "render/sample_families.h"

namespace ornavo {
void Sample_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse) {
    if (!control.rect().contains(mouse.x, mouse.y)) return;
    parts.anchors.ResetSelection();
    parts.selection.SelectSample(SelectedBy(control, parts.host.sample, *FindSample(control.Name)));
    parts.windows.properties().Open();
}

}  // namespace ornavo
