// SPDX-License-Identifier: MIT
#include "canvas/window_menu.h"

#include <QMenu>
#include "platform/shown.h"

namespace ornavo {
namespace {

void AddLines(QMenu& menu, Windows& windows) {
    for (const WindowLine& line : windows.Lines()) {
        QAction* item = menu.addAction(Shown(line.caption));
        item->setCheckable(true);
        item->setChecked(line.isShown());
        QObject::connect(item, &QAction::triggered, &menu, line.toggle);
    }
}

}  // namespace

void PopupWindowMenu(CanvasParts& parts, const QPoint& at) {
    QMenu mnuWindows("Windows", &parts.form);
    mnuWindows.setObjectName("mnuWindows");
    AddLines(mnuWindows, parts.windows);
    mnuWindows.exec(at);
}

void AddWindowMenu(QMenu& menu, Windows& windows) {
    if (windows.Lines().empty()) return;
    menu.addSeparator();
    AddLines(*menu.addMenu("&Windows"), windows);
}

}  // namespace ornavo
