// SPDX-License-Identifier: MIT
#include "render/surface.h"

#include <QPainter>
#include <algorithm>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "document/current_skin.h"
#include "platform/control.h"
#include "render/prefs.h"
#include "render/shape.h"
#include "render/skin_picture.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

constexpr Colour CanvasColour = ColourOf(0x8000000C);
constexpr Colour DotColour = Rgb(110, 100, 100);
constexpr int LeastGrid = 3;  // pixels; no grid is drawn if both spacings are smaller
constexpr int MostGrid = 100'000;
constexpr int DotsPerLine = 5;

/// The skin's background; null if it has none. Failure if it cannot be loaded.
PictureRef BackgroundPicture() {
    const std::string name = PrefText("SP_BackgroundPicture");
    if (name.empty()) return nullptr;
    PictureRef picture = LoadSkinPicture(name);
    if (!picture)
        throw Failure(Failure::FileNotFound, "Surface", "The background picture can't be loaded: " + name);
    return picture;
}

// Filled rectangles, because they cover whole pixels of the skin at every scale of the screen.
void DrawLine(QPainter& painter, int x, int y, int width, int height, const QColor& colour) {
    painter.fillRect(x, y, width, height, colour);
}

}  // namespace

void DrawGrid(QPainter& painter, int width, int height, int gridX, int gridY) {
    const QColor dots = ScreenColour(DotColour);
    if (gridX >= LeastGrid || gridY >= LeastGrid) {
        const int stepX = std::clamp(gridX, 1, MostGrid), stepY = std::clamp(gridY, 1, MostGrid);
        const QColor lines = ScreenColour(BlendColor(DotColour, 0, 128));
        for (int x = 0; x <= width; x += DotsPerLine * stepX) DrawLine(painter, x, 0, 1, height, lines);
        for (int y = 0; y <= height; y += DotsPerLine * stepY) DrawLine(painter, 0, y, width, 1, lines);
        std::vector<QRect> grid;  // in one call, because a canvas has thousands of dots
        for (int x = 0; x <= width; x += stepX)
            for (int y = 0; y <= height; y += stepY) grid.emplace_back(x, y, 1, 1);
        painter.setPen(Qt::NoPen);
        painter.setBrush(dots);
        painter.drawRects(grid.data(), static_cast<int>(grid.size()));
    }
    DrawLine(painter, ToLong(width / 2.0), 0, 1, height, dots);
    DrawLine(painter, 0, ToLong(height / 2.0), width, 1, dots);
}

bool Surface::ShowGrid(const Frame& frame, double devicePixelRatio) {
    Look next = {{frame.TargetWidth, frame.TargetHeight}, devicePixelRatio};
    PictureRef background;
    if (!Attempt([&] { background = BackgroundPicture(); })) return false;
    if (background) next.background = background->image().cacheKey();
    Attempt([&] {
        if (viewSwitches.ShowShape) next.shape = ShapePolygon(*objCurrentLayout, frame, CornerOf::Shape);
        next.isInverted = viewSwitches.ShapeInverted;
        if (viewSwitches.ShowGrid) next.grid = QPoint(viewSwitches.GridX, viewSwitches.GridY);
    });
    if (next == wanted_) return false;
    wanted_ = std::move(next);
    background_ = std::move(background);
    isDrawn_ = false;
    return true;
}

void Surface::Draw() {
    isDrawn_ = true;
    const PictureRef background = std::move(background_);
    drawn_ = QPixmap(wanted_.size * wanted_.devicePixelRatio);
    drawn_.setDevicePixelRatio(wanted_.devicePixelRatio);
    drawn_.fill(ScreenColour(CanvasColour));
    QPainter painter(&drawn_);
    if (background) painter.drawImage(0, 0, background->image());
    DrawShapeOverlay(painter, wanted_.shape, wanted_.size, wanted_.isInverted);
    if (wanted_.grid)
        DrawGrid(painter, wanted_.size.width(), wanted_.size.height(), wanted_.grid->x(), wanted_.grid->y());
}

void Surface::Paint(QPainter& painter, const QRect& area) {
    if (!isDrawn_) Draw();
    const QSize covered = drawn_.deviceIndependentSize().toSize();
    if (!QRect(QPoint(0, 0), covered).contains(area)) painter.fillRect(area, ScreenColour(CanvasColour));
    painter.drawPixmap(0, 0, drawn_);  // the painter clips it to the area
}

}  // namespace ornavo
