// SPDX-License-Identifier: MIT
// The outline that replaces the preview during a resize: an empty topmost window in the shape that the
// preview will have.
#pragma once

#include <QWidget>
#include <functional>

#include "document/dblayouts.h"
#include "render/placement.h"

namespace ornavo {

/// The window of the outline.
class frm_Resizer : public QWidget {
public:
    /// `onClick` is called for a click, which means that the release has been missed.
    explicit frm_Resizer(std::function<void()> onClick);

    /// Shows the outline at a place of the screen in pixels, with the layout's shape for that size. Throws
    /// the failures of GetPointPosition.
    void Stand(const QRect& place, const dbLayout& layout, Frame frame);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override { onClick_(); }

private:
    std::function<void()> onClick_;
    QPolygon shape_;  // the whole window if the layout has no shape
};

}  // namespace ornavo
