// SPDX-License-Identifier: MIT
// The edge of a window is its mask alone.
#pragma once

#include <QRegion>

class QWidget;

namespace ornavo {

/// Cuts the window to the region, in its own pixels. It stays whole where nothing of it would be left.
void CutWindow(QWidget& window, const QRegion& region);

/// Nothing of the window can be seen or hit, yet it keeps the mouse that is pressed in it.
void VeilWindow(QWidget& window);

}  // namespace ornavo
