// SPDX-License-Identifier: MIT
#include "canvas/removal.h"

#include <QTimer>

#include "base/failure.h"
#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "document/current_skin.h"
#include "document/layout_edits.h"
#include "document/shape_edits.h"
#include "render/layout_host.h"

namespace ornavo {
namespace {

void RemoveCorner(CanvasParts& parts) {
    Attempt([&] { DeleteShapePoint(*objCurrentLayout, parts.selection.SelKey()); });
    parts.selection.ForgetControl();
    objSkin->Dirty = true;
    parts.canvas.UpdateCurrentLayout();
    parts.windows.properties().ShowProperties();
}

void RemoveElement(CanvasParts& parts) {
    Control& control = *parts.selection.SelControl();
    Attempt([&] { DeleteElement(*objCurrentLayout, control.Tag); });
    parts.anchors.HideAnchors();
    control.setVisible(false);
    control.Tag.clear();
    if (FamilyOf(control)->kind == ElementKind::Info)
        parts.host.pInfo.Released(control.Index);
    else
        parts.host.Element.Released(control.Index);
    parts.selection.ForgetControl();
    objSkin->Dirty = true;
}

}  // namespace

void RemoveSelected(CanvasParts& parts) {
    const ElementFamily* family = FamilyOf(*parts.selection.SelControl());
    const bool isCorner = parts.selection.IsCorner();
    if (!isCorner && (!family || family->isStandard)) return;
    if (isCorner)
        RemoveCorner(parts);
    else
        RemoveElement(parts);
    parts.tmrShowProperties.start();
    parts.canvas.UpdateCaption();
}

}  // namespace ornavo
