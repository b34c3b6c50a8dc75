// SPDX-License-Identifier: MIT
// The outline that stands in for the preview while it is being resized: an empty window above all others, in
// the shape that the preview will have.
#pragma once

#include <QWidget>
#include <functional>

#include "document/dblayouts.h"
#include "render/placement.h"

namespace ornavo {

class frm_Resizer : public QWidget {
public:
    /// `onClick`: a click tells that the release was missed.
    explicit frm_Resizer(std::function<void()> onClick);

    /// Shown there (pixels of the screen) in the layout's shape for that size. Failures of GetPointPosition.
    void Stand(const QRect& place, const dbLayout& layout, Frame frame);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override { onClick_(); }

private:
    std::function<void()> onClick_;
    QPolygon shape_;  // null where the window is whole
};

}  // namespace ornavo
