// SPDX-License-Identifier: MIT
// Returns the keyboard focus to the window that opened a dialog.
#pragma once

#include <QPointer>
#include <QWidget>

namespace ornavo {

/// Gives the window the keyboard focus, and takes it back once if the desktop gives it to another window
/// shortly after. Does nothing for null or a hidden window.
void GiveKeyboardTo(QWidget* window);

/// Lives while a dialog is open; the destructor gives the window the keyboard focus back.
class Asker {
public:
    explicit Asker(QWidget* window) : window_(window) {}
    ~Asker() { GiveKeyboardTo(window_); }
    Asker(const Asker&) = delete;
    Asker& operator=(const Asker&) = delete;

private:
    QPointer<QWidget> window_;
};

}  // namespace ornavo
