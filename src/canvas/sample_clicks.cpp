// SPDX-License-Identifier: MIT
#include "canvas/sample_clicks.h"

#include "canvas/anchors.h"
#include "editor/selection.h"
#include "render/layout_host.h"

namespace ornavo {
namespace {

/// Of like controls the first one stands for all, and a picture for its label.
Control& FirstOf(LayoutHost& host, Control& control) {
    if (control.Name == "lbl_SL") return host.lbl_SL[0];
    if (control.Name == "but_Label") return host.but_Picture;
    return control;
}

}  // namespace

void Sample_MouseUp(CanvasParts& parts, Control& control, const Mouse& mouse) {
    if (!control.rect().contains(mouse.x, mouse.y)) return;
    parts.anchors.ResetSelection();
    SelControl = &FirstOf(parts.host, control);
    SelKey.clear();  // a deleted element leaves its key
    parts.windows.properties().Open();
}

}  // namespace ornavo
