// SPDX-License-Identifier: MIT
#include "preview/window_shape.h"

#include <QWidget>

namespace ornavo {

void CutWindow(QWidget& window, const QRegion& region) {
    if (region.intersects(window.rect()))
        window.setMask(region);
    else
        window.clearMask();
}

void VeilWindow(QWidget& window) {
    window.setMask(QRegion(-1, -1, 1, 1));  // because a hidden window gets no release event
}

}  // namespace ornavo
