// SPDX-License-Identifier: MIT
// What lies behind the elements of the canvas: background picture, shape overlay, grid and guide lines.
#pragma once

#include <QPixmap>

#include "platform/pictures.h"
#include "render/placement.h"

namespace ornavo {

class Surface {
public:
    /// Draws everything anew for a window of this size, by the current skin, layout and view switches. When
    /// the skin's background can't be loaded, what was there stays as it is; a shape that has no place leaves
    /// the background alone.
    void ShowGrid(const Frame& frame, double devicePixelRatio);

    /// Fills the area (pixels of the window); what ShowGrid has not covered is the plain canvas colour.
    void Paint(QPainter& painter, const QRect& area) const;

private:
    QPixmap drawn_;
};

/// The grid and the two guide lines through the middle of a window of this size.
void DrawGrid(QPainter& painter, int width, int height, int gridX, int gridY);

}  // namespace ornavo
