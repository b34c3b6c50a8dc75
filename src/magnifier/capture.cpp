// SPDX-License-Identifier: MIT
#include "magnifier/capture.h"

#include "base/numbers.h"

namespace ornavo {
namespace {

/// The first pixel seen in one direction, and the number of pixels that fill `length`. The pointer's pixel is
/// the middle one of the rounded number; the last one may be cut off.
struct Span {
    int first, count;
};

Span SpanOf(int pointer, int length, int zoom) {
    const int fitting = static_cast<int>(RoundHalfEven(length / static_cast<double>(zoom)));
    return {pointer - fitting / 2, (length + zoom - 1) / zoom};
}

}  // namespace

std::vector<Piece> PiecesOf(QPoint pointer, QSize picture, int zoom, const std::vector<QRect>& screens) {
    const Span across = SpanOf(pointer.x(), picture.width(), zoom);
    const Span down = SpanOf(pointer.y(), picture.height(), zoom);
    const QRect seen(across.first, down.first, across.count, down.count);
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < screens.size(); ++i) {
        const QRect source = seen & screens[i];
        if (source.isEmpty()) continue;
        pieces.push_back({static_cast<int>(i), source,
                          QRect((source.topLeft() - seen.topLeft()) * zoom, source.size() * zoom)});
    }
    return pieces;
}

}  // namespace ornavo
