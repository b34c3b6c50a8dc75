// SPDX-License-Identifier: MIT
// The window that a box is asked from.
#pragma once

#include <QPointer>
#include <QWidget>

namespace ornavo {

/// Lives while a box is open. The window gets the keyboard back when this goes, where a desktop would give it
/// to the main window.
class Asker {
public:
    explicit Asker(QWidget* window) : window_(window) {}
    ~Asker();
    Asker(const Asker&) = delete;
    Asker& operator=(const Asker&) = delete;

private:
    QPointer<QWidget> window_;
};

}  // namespace ornavo
