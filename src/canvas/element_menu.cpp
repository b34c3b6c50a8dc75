// SPDX-License-Identifier: MIT
#include "canvas/element_menu.h"

#include <QMenu>
#include <array>

#include "base/failure.h"
#include "base/find_row.h"
#include "canvas/element_families.h"
#include "canvas/new_elements.h"
#include "canvas/picture_items.h"
#include "canvas/removal.h"
#include "canvas/window_menu.h"
#include "document/current_skin.h"
#include "document/layout_edits.h"
#include "platform/control.h"

namespace ornavo {
namespace {

void BringToFront(CanvasParts& parts) {
    BringElementToFront(*objCurrentLayout, parts.selection.SelKey());
    parts.canvas.UpdateCurrentLayout();
}

void SendToBack(CanvasParts& parts) {
    SendElementToBack(*objCurrentLayout, parts.selection.SelKey());
    parts.canvas.UpdateCurrentLayout();
}

/// An item of the menu.
struct MenuRow {
    int index;
    const char* caption;
    bool forStandard;              // enabled for the standard elements too
    void (*effect)(CanvasParts&);  // null: a separator
};
constexpr std::array mnuElementSub = {
    MenuRow{MenuClone, "&Clone", false, CloneElement},
    MenuRow{MenuDelete, "&Delete", false, RemoveSelected},
    MenuRow{20, "-", true, nullptr},
    MenuRow{MenuBringToFront, "&Bring To Front", true, BringToFront},
    MenuRow{MenuSendToBack, "Se&nd To Back", true, SendToBack},
    MenuRow{30, "-", true, nullptr},
    MenuRow{MenuOriginalSize, "&Reset to original Size", false, ResetToOriginalSize},
    MenuRow{MenuBackgroundPicture, "Use Background as &Picture", false, UseBackgroundAsPicture},
};

}  // namespace

void PopupElementMenu(CanvasParts& parts, const QPoint& at, bool isStandard) {
    QMenu mnuElement("Element", &parts.form);
    mnuElement.setObjectName("mnuElement");
    for (const MenuRow& row : mnuElementSub) {
        QAction* item = row.effect ? mnuElement.addAction(row.caption) : mnuElement.addSeparator();
        item->setData(row.index);
        item->setEnabled(row.forStandard || !isStandard);
    }
    AddWindowMenu(mnuElement, parts.windows);
    if (const QAction* chosen = mnuElement.exec(at)) mnuElementSub_Click(parts, chosen->data().toInt());
}

void mnuElementSub_Click(CanvasParts& parts, int index) {
    const MenuRow* row = FindRow(mnuElementSub, &MenuRow::index, index);
    if (!row || !row->effect || !SelectedElement(parts)) return;
    Attempt([&] { row->effect(parts); });
}

}  // namespace ornavo
