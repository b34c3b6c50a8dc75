// SPDX-License-Identifier: MIT
// The window that a box is asked from.
#pragma once

#include <QPointer>
#include <QWidget>

namespace ornavo {

/// The window gets the keyboard, also where a desktop gives it to the main window when a box has gone.
/// Nothing for null or a window that is hidden.
void GiveKeyboardTo(QWidget* window);

/// Lives while a box is open: the window gets the keyboard back when this goes.
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
