// SPDX-License-Identifier: MIT
// A skin's folder or its settings file dropped on a window opens the skin. Nothing else is taken.
#pragma once

#include <QObject>

class QWidget;

namespace ornavo {

class Windows;

/// Lives as long as the window. A skin that can't be opened is told.
class SkinDrop : public QObject {
public:
    SkinDrop(QWidget& window, Windows& windows);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Windows& windows_;
};

}  // namespace ornavo
