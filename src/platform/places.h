// SPDX-License-Identifier: MIT
// Where to put windows. All values are pixels of the screen.
#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace ornavo {

/// The corner for a window of this outer size beside `main`, to its right or else to its left, and as high up
/// as possible without overlapping one of `taken`. Empty if `room` has no such place.
std::optional<QPoint> PlaceBeside(const QRect& room, const QRect& main, const QSize& window,
                                  const std::vector<QRect>& taken);

/// The corner, moved so that the whole window of this outer size is inside the room, or at least its upper
/// left part.
QPoint WithinRoom(const QRect& room, const QPoint& corner, const QSize& window);

}  // namespace ornavo
