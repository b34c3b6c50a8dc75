// SPDX-License-Identifier: MIT
// Where windows find room. All in pixels of the screen.
#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace ornavo {

/// The corner of a window of that outer size beside `main`: to its right, or else to its left, as high as it
/// can stand without lying on one of `taken`. None where the room has no such place.
std::optional<QPoint> PlaceBeside(const QRect& room, const QRect& main, const QSize& window,
                                  const std::vector<QRect>& taken);

/// The corner, moved so that a window of that outer size is seen whole in the room, or at least its upper
/// left.
QPoint WithinRoom(const QRect& room, const QPoint& corner, const QSize& window);

}  // namespace ornavo
