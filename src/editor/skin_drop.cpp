// SPDX-License-Identifier: MIT
#include "editor/skin_drop.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <string>

#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/dbskin.h"
#include "editor/open_skin.h"

namespace ornavo {
namespace {

bool IsSkin(const std::string& path) {
    if (FolderExists(path)) return FileExists(WithSeparator(path) + std::string(SettingsFileName));
    return EqualText(GetFileName(path), SettingsFileName) && FileExists(path);
}

/// The skin's folder or settings file that is dragged; "" if anything else is dragged.
std::string DroppedSkin(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) return "";
    const std::string path = urls.first().toLocalFile().toStdString();
    return IsSkin(path) ? path : "";
}

}  // namespace

SkinDrop::SkinDrop(QWidget& window, Windows& windows) : QObject(&window), windows_(windows) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool SkinDrop::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) return false;
    auto& drop = *static_cast<QDropEvent*>(event);  // the base class of both events
    const std::string path = DroppedSkin(drop);
    if (path.empty()) return false;
    drop.acceptProposedAction();
    if (event->type() == QEvent::DragEnter) return true;
    OpenSkin(windows_, path);
    return true;
}

}  // namespace ornavo
