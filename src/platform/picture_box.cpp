// SPDX-License-Identifier: MIT
#include "platform/picture_box.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/fonts.h"

namespace ornavo {

PictureBox::PictureBox(QWidget* parent, std::string name, int index)
    : Control(parent, std::move(name), index) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetPicture(PictureRef picture) {
    if (picture == picture_) return;
    picture_ = std::move(picture);
    update();
}

void PictureBox::SetBackColor(Colour colour) {
    Cls();
    Control::SetBackColor(colour);
}

void PictureBox::Tile(PictureRef picture) {
    tile_ = std::move(picture);
    update();
}

void PictureBox::Cls() {
    if (layer_.isNull() && !tile_) return;
    layer_ = QPixmap();
    tile_ = nullptr;
    update();
}

void PictureBox::Draw(const std::function<void(QPainter&)>& drawing) {
    const QSize pixels = size() * devicePixelRatioF();
    if (pixels.isEmpty() || std::int64_t{pixels.width()} * pixels.height() > PicturePixelLimit) return;
    if (layer_.size() != pixels) {
        layer_ = QPixmap(pixels);
        layer_.setDevicePixelRatio(devicePixelRatioF());
        layer_.fill(Qt::transparent);
    }
    QPainter painter(&layer_);
    drawing(painter);
    update();
}

void PictureBox::DrawText(std::string_view text, const Rect& area) {
    Draw([&](QPainter& painter) {
        const QFont font = ScreenFont(Font);
        painter.setClipRect(area.left, area.top, area.width, area.height);
        painter.setFont(font);
        painter.setPen(ScreenColour(ForeColor));
        painter.drawText(area.left, area.top + painter.fontMetrics().ascent(), ShownText(Font, text));
    });
}

int PictureBox::TextWidth(std::string_view text) const {
    return QFontMetrics(ScreenFont(Font)).horizontalAdvance(ShownText(Font, text));
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), ScreenColour(BackColor()));
    if (tile_) painter.fillRect(event->rect(), QBrush(tile_->image()));
    if (picture_) painter.drawImage(0, 0, picture_->image());
    if (!layer_.isNull()) painter.drawPixmap(0, 0, layer_);
}

}  // namespace ornavo
