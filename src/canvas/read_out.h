// SPDX-License-Identifier: MIT
// The read-out beside the pointer during a drag: position and size of the dragged control in pixels.
#pragma once

#include <QLabel>

#include "editor/selection.h"

namespace ornavo {

/// A window of its own, so that a step of a drag repaints less of the canvas. It hides when the dragged
/// control is hidden, because that gets no release event.
class ReadOut : public QLabel {
public:
    explicit ReadOut(QWidget& window);
    /// `pointer` is in pixels of the screen.
    void ShowBeside(const QPoint& pointer, const Selection& dragged);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ornavo
