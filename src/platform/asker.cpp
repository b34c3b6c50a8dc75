// SPDX-License-Identifier: MIT
#include "platform/asker.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

namespace ornavo {
namespace {

constexpr int Patience = 400;  // milliseconds

}  // namespace

void GiveKeyboardTo(QWidget* window) {
    if (!window || !window->isVisible()) return;
    window->activateWindow();
    // A desktop that sees the box go only later gives the keyboard to another window then.
    auto* watch = new QObject(window);
    QTimer::singleShot(Patience, watch, &QObject::deleteLater);
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, watch,
                     [watch, window](const QWindow* focus) {
                         if (!focus || focus == window->windowHandle()) return;
                         QObject::disconnect(qApp, nullptr, watch, nullptr);
                         if (!QApplication::activeModalWidget()) window->activateWindow();
                     });
}

}  // namespace ornavo
