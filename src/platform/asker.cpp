// SPDX-License-Identifier: MIT
#include "platform/asker.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>

namespace ornavo {
namespace {

constexpr int Patience = 400, Doubt = 30;  // milliseconds

/// Watches the focus for a while. A desktop that notices late that a dialog has closed then focuses another
/// window. The focus is taken back once, unless the user has pressed a mouse button.
class Watch : public QObject {
public:
    explicit Watch(QWidget* window) : QObject(window), window_(window) {
        qApp->installEventFilter(this);
        QTimer::singleShot(Patience, this, &QObject::deleteLater);
        connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focus) {
            // The press by which the user focused another window is reported after the focus change.
            if (focus && focus != window_->windowHandle())
                QTimer::singleShot(Doubt, this, [this] { TakeBack(); });
        });
    }

private:
    bool eventFilter(QObject*, QEvent* event) override {
        pressed_ = pressed_ || event->type() == QEvent::MouseButtonPress;
        return false;
    }
    void TakeBack() {
        if (!pressed_ && !QApplication::activeModalWidget()) window_->activateWindow();
        delete this;
    }

    QWidget* const window_;
    bool pressed_ = false;
};

}  // namespace

void GiveKeyboardTo(QWidget* window) {
    if (!window || !window->isVisible()) return;
    window->activateWindow();
    new Watch(window);
}

}  // namespace ornavo
