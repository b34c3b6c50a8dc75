// SPDX-License-Identifier: MIT
// Which rectangles of which screens are seen about the pointer, and where each stands in the enlarged
// picture.
#pragma once

#include <QPoint>
#include <QRect>
#include <vector>

namespace ornavo {

struct Piece {
    int screen = 0;  // its number
    QRect source;    // of the screens' plane
    QRect target;    // of the picture, `zoom` times as large; its last row and column may pass the edge
    bool operator==(const Piece&) const = default;
};

/// All in device pixels. What no piece covers lies beyond the screens' edges.
std::vector<Piece> PiecesOf(QPoint pointer, QSize picture, int zoom, const std::vector<QRect>& screens);

}  // namespace ornavo
