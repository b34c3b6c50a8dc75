// SPDX-License-Identifier: MIT
// The floating window with the magnified screen, and a mark on the pixel under the pointer.
#pragma once

#include <QLabel>

#include "magnifier/magnify.h"
#include "platform/form.h"

namespace ornavo {

/// Frames the pixel that the pointer points at: see-through inside, and for the mouse.
class PixelMark : public QWidget {
public:
    explicit PixelMark(QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;
};

class frm_Magnifier : public Form {
public:
    explicit frm_Magnifier(QWidget* owner);
    frm_Magnifier(QWidget* owner, PixelSource& desktop, PixelSource& own);

    /// Shown at its place of the last time.
    void Open();

private:
    void ShowState();

    DesktopPixels desktopPixels_;
    OwnWindowPixels ownPixels_;

public:
    Magnify Magnify1;
    PixelMark Picture1;
    QLabel lbl_State;  // the zoom, and "frozen"; at the bottom left, since a title is cut

protected:
    void keyPressEvent(QKeyEvent*) override;
    void Form_Resize() override;
    void Form_Unload() override;
};

}  // namespace ornavo
