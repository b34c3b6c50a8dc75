// SPDX-License-Identifier: MIT
// A rectangle with a background, a tiled or a plain picture, and a drawn layer on top.
#pragma once

#include <QPixmap>

#include "base/font.h"
#include "platform/control.h"
#include "platform/pictures.h"

namespace ornavo {

/// The control of info elements and of the sample's panel.
class PictureBox : public Control {
public:
    PictureBox(QWidget* parent, std::string name, int index = 0);

    void SetPicture(PictureRef picture);  // at the top left in its natural size; null for none
    const PictureRef& GetPicture() const { return picture_; }
    void Tile(PictureRef picture);  // repeated from the top left over the whole box, also after a resize
    void Cls();                     // removes the tiles and everything drawn
    /// Draws into the layer, which is as large as the box. Does nothing if the box is empty or too large.
    void Draw(const std::function<void(QPainter&)>& drawing);
    /// Draws one line of text with its top left at that of the area, clipped to the area. Line breaks and "&"
    /// have no special meaning.
    void DrawText(std::string_view text, const Rect& area);
    int TextWidth(std::string_view text) const;  // pixels, for a line that DrawText draws

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
