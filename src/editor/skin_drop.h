// SPDX-License-Identifier: MIT
// Opens a skin whose folder or settings file is dropped on a window.
#pragma once

#include <QObject>

class QWidget;

namespace ornavo {

class Windows;

/// Accepts drops on a window as long as the window lives. A failure is shown in a message box.
class SkinDrop : public QObject {
public:
    SkinDrop(QWidget& window, Windows& windows);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Windows& windows_;
};

}  // namespace ornavo
