// SPDX-License-Identifier: MIT
// What is drawn behind the elements of the canvas: background picture, shape overlay, grid and guide lines.
#pragma once

#include <QPixmap>
#include <QPolygon>
#include <optional>

#include "platform/pictures.h"
#include "render/placement.h"

namespace ornavo {

/// The canvas's background, drawn when it is first painted and then painted from a pixmap.
class Surface {
public:
    /// What to show in a window of this size, by the current skin, layout and view switches. If the skin's
    /// background cannot be loaded, it stays as it was. If the shape cannot be placed, only the background is
    /// shown. Gives whether it has changed.
    bool ShowGrid(const Frame& frame, double devicePixelRatio);

    /// Paints the area, in pixels of the window. Parts outside of the size given to ShowGrid get the plain
    /// canvas colour.
    void Paint(QPainter& painter, const QRect& area);

private:
    /// All that the drawing depends on.
    struct Look {
        QSize size;
        double devicePixelRatio = 1;
        qint64 background = 0;            // the picture's cacheKey
        QPolygon shape = {};              // empty if it isn't shown
        bool isInverted = false;          // the outside of the shape is dimmed
        std::optional<QPoint> grid = {};  // its spacings in pixels; none if it isn't shown
        bool operator==(const Look&) const = default;
    };
    void Draw();

    Look wanted_;
    PictureRef background_;  // until it is drawn
    QPixmap drawn_;
    bool isDrawn_ = true;
};

/// The grid, and the two guide lines through the middle of a window of this size. All values are pixels.
void DrawGrid(QPainter& painter, int width, int height, int gridX, int gridY);

}  // namespace ornavo
