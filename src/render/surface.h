// SPDX-License-Identifier: MIT
// What is drawn behind the elements of the canvas: background picture, shape overlay, grid and guide lines.
#pragma once

#include <QPixmap>

#include "platform/pictures.h"
#include "render/placement.h"

namespace ornavo {

/// The canvas's background, drawn once and painted from a pixmap.
class Surface {
public:
    /// Draws everything for a window of this size, by the current skin, layout and view switches. If the
    /// skin's background cannot be loaded, the old drawing stays. If the shape cannot be placed, only the
    /// background is drawn.
    void ShowGrid(const Frame& frame, double devicePixelRatio);

    /// Paints the area, in pixels of the window. Parts that ShowGrid has not drawn get the plain canvas
    /// colour.
    void Paint(QPainter& painter, const QRect& area) const;

private:
    QPixmap drawn_;
};

/// The grid, and the two guide lines through the middle of a window of this size. All values are pixels.
void DrawGrid(QPainter& painter, int width, int height, int gridX, int gridY);

}  // namespace ornavo
