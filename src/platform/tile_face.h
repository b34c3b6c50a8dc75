// SPDX-License-Identifier: MIT
// The look of a picture button: from plain state to pixels. Independent of widgets, mouse and clock.
#pragma once

#include <QImage>
#include <QPainter>
#include <string>
#include <vector>

#include "base/colour.h"
#include "base/font.h"
#include "base/geometry.h"
#include "platform/alignment.h"
#include "platform/pictures.h"

namespace ornavo {

/// One layer over the button's picture: a text or a small picture. A text's area is from Left to the button's
/// width less RightTrim, and Alignment refers to that area; a text that is wider is clipped to it. A picture
/// has no area: Left is its distance from the side that Alignment names, or from the middle.
struct TileLayer {
    std::string Key;
    std::string Text;
    PictureRef Picture;
    bool IsText = true;
    ornavo::Font Font;
    Colour ForeColor = 0;
    int Alignment = Centred;  // AlignmentCode
    float Left = 0, Top = 0;  // pixels from the button's left and top
    float RightTrim = 0;      // pixels, at the right end of a text's area
    float Height = 0;         // pixels of a text's area; the text starts at Top
    bool Visible = true;
    bool operator==(const TileLayer&) const = default;
};

/// The layers of a button, found by key without regard to case and drawn in order.
class TileLayers {
public:
    TileLayer& Add(std::string_view key);   // Failure 457 if the key exists
    TileLayer& Item(std::string_view key);  // Failure 9 if the key does not exist
    void Remove(std::string_view key);
    void Clear() { layers_.clear(); }
    int Count() const { return static_cast<int>(layers_.size()); }
    auto begin() const { return layers_.begin(); }
    auto end() const { return layers_.end(); }
    bool operator==(const TileLayers&) const = default;

private:
    std::vector<TileLayer> layers_;
};

/// Everything that a button's look depends on except its size and the picture shown.
struct TileState {
    Colour BackColor = ButtonFace;
    int BackStyle = 1;        // 0 transparent, 1 opaque
    bool ShowBorder = false;  // one pixel wide, inside the control
    Colour BorderColor = 0;
    bool UseTransparency = false;    // pixels of the key colour are not drawn
    bool TransColorTopLeft = false;  // the key colour is the shown picture's top left pixel, as decoded
    Colour TransparentColor = ButtonFace;
    bool ShowSmooth = false;
    bool UseRotation = false;
    double Rotation = 0;     // degrees clockwise around the middle
    bool UseShadow = false;  // for text layers
    int ShadowDistance = 0;  // pixels right and down
    Colour ShadowColor = 0;
    bool operator==(const TileState&) const = default;
};

/// The most pixels of a finished picture; a larger one is painted directly.
inline constexpr std::int64_t FinishedPixelLimit = 16'000'000;

/// The key colour in use: the picture's top left pixel or the given one.
Colour KeyColourOf(const TileState& state, const QImage& picture);
/// The key colour as a plain colour if it hides pixels, otherwise NoColour: without UseTransparency, for an
/// invalid colour, or if the top left pixel is the key but is itself transparent.
inline constexpr Colour NoColour = -1;
Colour HiddenColourOf(const TileState& state, const QImage& picture);

/// Whether a button of this state covers what is behind it when it shows the picture.
bool IsOpaque(const TileState& state, const QImage& picture);

/// The picture with its key colour removed, then stretched to the size (pixels of the skin), then rotated.
/// The picture and the result are RGB32 or premultiplied ARGB32. `scale` is the number of screen pixels to a
/// pixel of the skin; without smoothness each of these is a square of one colour. Null beyond
/// FinishedPixelLimit.
QImage FinishedPicture(const QImage& picture, const TileState& state, Size size, int scale = 1);

/// A text layer's line, as high as its font, and its area, in pixels of the button. A line that is wider than
/// the area is clipped to it.
struct TextPlace {
    Rect line, area;
};
TextPlace PlaceOfText(const TileLayer& layer, Size size);

/// Paints the whole button. `picture` is the one to show and may be null. `finished`, if not null, is used
/// instead of calling FinishedPicture. An opaque button without a picture gets a plain raised face.
void PaintTile(QPainter& painter, const TileState& state, const TileLayers& layers, Size size,
               const QImage* picture, const QImage* finished = nullptr);

}  // namespace ornavo
