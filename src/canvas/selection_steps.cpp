// SPDX-License-Identifier: MIT
#include "canvas/selection_steps.h"

#include <QTimer>
#include <algorithm>

#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "document/current_skin.h"

namespace ornavo {
namespace {

std::vector<Control*> ShownElements(LayoutHost& host) {
    std::vector<Control*> shown;
    for (const dbLayoutElementRef& element : *objCurrentLayout->dbLayoutElements)
        if (Control* control = ElementControl(host, element->Key); control && !control->isHidden())
            shown.push_back(control);
    return shown;
}

}  // namespace

void StepSelection(CanvasParts& parts, int step) {
    if (!LayoutIsOpen() || parts.drag.MouseIsDown()) return;
    const std::vector<Control*> shown = ShownElements(parts.host);
    if (shown.empty()) return;
    const auto count = std::ssize(shown);
    const auto found = std::ranges::find(shown, parts.selection.SelControl()) - shown.begin();
    const auto from = found < count ? found : (step > 0 ? count - 1 : 0);
    parts.windows.properties().DrawPendingEdits();  // of the element selected so far
    {
        const Raised open = parts.selection.KeepPropertiesOpen();
        parts.anchors.ResetSelection();
    }
    Control* next = shown[static_cast<std::size_t>((from + step + count) % count)];
    parts.anchors.SelectWithAnchors(*next);
    QAccessibleEvent told(next, QAccessible::Focus);
    QAccessible::updateAccessibility(&told);
    parts.tmrShowProperties.start();
}

}  // namespace ornavo
