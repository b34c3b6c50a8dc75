// SPDX-License-Identifier: MIT
// The magnifier: a floating window with the enlarged screen and a mark on the pixel under the pointer.
#pragma once

#include <QLabel>

#include "magnifier/magnify.h"
#include "platform/form.h"

namespace ornavo {

/// A frame around the pixel under the pointer; ignored by the mouse.
class PixelMark : public QWidget {
public:
    explicit PixelMark(QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;
};

/// The window of the magnifier.
class frm_Magnifier : public Form {
public:
    explicit frm_Magnifier(QWidget* owner);
    frm_Magnifier(QWidget* owner, PixelSource& desktop, PixelSource& own);

    /// Shows the window at its stored place.
    void Open();

private:
    void ShowState();

    DesktopPixels desktopPixels_;
    OwnWindowPixels ownPixels_;

public:
    Magnify Magnify1;
    PixelMark Picture1;
    QLabel lbl_State;  // zoom and "frozen"; here because a narrow title would be cut off

protected:
    void keyPressEvent(QKeyEvent*) override;
    void Form_Resize() override;
    void Form_Unload() override;
};

}  // namespace ornavo
