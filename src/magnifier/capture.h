// SPDX-License-Identifier: MIT
// Which parts of which screens are around the pointer, and where they are in the enlarged picture.
#pragma once

#include <QPoint>
#include <QRect>
#include <vector>

namespace ornavo {

/// A part of a screen that is visible in the picture.
struct Piece {
    int screen = 0;  // index, from 0
    QRect source;    // in the plane of the screens
    QRect target;    // in the picture, `zoom` times as large; may exceed its right and bottom edge
    bool operator==(const Piece&) const = default;
};

/// The visible parts, in device pixels. Areas without a part are beyond the screens' edges.
std::vector<Piece> PiecesOf(QPoint pointer, QSize picture, int zoom, const std::vector<QRect>& screens);

}  // namespace ornavo
