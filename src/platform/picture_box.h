// SPDX-License-Identifier: MIT
// A box with a background, a tiled picture or one at its natural size, and a drawn layer over it.
#pragma once

#include <QPixmap>

#include "base/font.h"
#include "platform/control.h"
#include "platform/pictures.h"

namespace ornavo {

class PictureBox : public Control {
public:
    PictureBox(QWidget* parent, std::string name, int index = 0);

    void SetPicture(PictureRef picture);  // at the box's top left, natural size; null for none
    const PictureRef& GetPicture() const { return picture_; }
    void Tile(PictureRef picture);  // from the top left over all of the box, also when it grows
    void Cls();                     // takes away the tiles and empties the drawn layer
    /// Draws into the layer, which has the box's size.
    void Draw(const std::function<void(QPainter&)>& drawing);
    /// A single line of text, its rectangle's top left given; nothing is broken, "&" is a character.
    void DrawText(std::string_view text, const Rect& area);
    int TextWidth(std::string_view text) const;  // pixels, of such a line

    ornavo::Font Font;
    Colour ForeColor = 0;

    void SetBackColor(Colour colour) override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    PictureRef picture_, tile_;
    QPixmap layer_;  // null while nothing is drawn
};

}  // namespace ornavo
