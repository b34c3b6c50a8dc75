// SPDX-License-Identifier: MIT
// Masks that give a window its shape.
#pragma once

#include <QRegion>

class QWidget;

namespace ornavo {

/// Cuts the window to the region, in the window's pixels. The window stays whole if nothing would be left.
void CutWindow(QWidget& window, const QRegion& region);

/// Makes the window invisible while it keeps a pressed mouse button.
void VeilWindow(QWidget& window);

}  // namespace ornavo
