// SPDX-License-Identifier: MIT
// The numbers beside the pointer during a drag: place and size of what is dragged, in pixels of the canvas.
#pragma once

#include <QLabel>

#include "editor/selection.h"

namespace ornavo {

/// A small window of its own, so that a step of a drag repaints nothing more of the canvas. Goes when the
/// control goes, since a hidden control hears of no release.
class ReadOut : public QLabel {
public:
    explicit ReadOut(QWidget& window);
    /// `pointer`: on the screen.
    void ShowBeside(const QPoint& pointer, const Selection& dragged);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ornavo
