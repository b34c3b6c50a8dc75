// SPDX-License-Identifier: MIT
// Where a small window finds room beside a large one.
#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace ornavo {

/// The corner of a window of that outer size beside `main`: to its right, or else to its left, as high as it
/// can stand without lying on one of `taken`. None where the room has no such place. All in pixels of the
/// screen.
std::optional<QPoint> PlaceBeside(const QRect& room, const QRect& main, const QSize& window,
                                  const std::vector<QRect>& taken);

}  // namespace ornavo
