// SPDX-License-Identifier: MIT
// The face of a picture button: plain state in, pixels out. Knows no widget, no mouse and no clock.
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

/// One layer over the button's picture: a text or a small picture. Its area reaches from Left to the button's
/// width less RightTrim. A text's Alignment is meant within that area: one that is centred moves by half of
/// Left, one at the right end is not moved by it, and one that is wider is cut at the area's ends. A picture
/// has no area: Left is its way from the end that Alignment names, or from the middle.
struct TileLayer {
    std::string Key;
    std::string Text;
    PictureRef Picture;
    bool IsText = true;
    ornavo::Font Font;
    Colour ForeColor = 0;
    int Alignment = Centred;  // AlignmentCode
    float Left = 0, Top = 0;  // pixels from the button's left and top
    float RightTrim = 0;      // pixels at the right end of the text area
    float Height = 0;         // pixels of the text area; its text starts at Top
    bool Visible = true;
    bool operator==(const TileLayer&) const = default;
};

/// The layers of a button, by key without regard to case, drawn in order.
class TileLayers {
public:
    TileLayer& Add(std::string_view key);   // Failure 457 if it is there
    TileLayer& Item(std::string_view key);  // Failure 9 if it is not
    void Remove(std::string_view key);
    void Clear() { layers_.clear(); }
    int Count() const { return static_cast<int>(layers_.size()); }
    auto begin() const { return layers_.begin(); }
    auto end() const { return layers_.end(); }
    bool operator==(const TileLayers&) const = default;

private:
    std::vector<TileLayer> layers_;
};

/// Everything that a button's look depends on but its size and which of its pictures is shown.
struct TileState {
    Colour BackColor = ButtonFace;
    int BackStyle = 1;        // 0 transparent, 1 opaque
    bool ShowBorder = false;  // one pixel, inside the control
    Colour BorderColor = 0;
    bool UseTransparency = false;    // the key colour of the picture is not drawn
    bool TransColorTopLeft = false;  // it is that of the shown picture's top left pixel, as decoded
    Colour TransparentColor = ButtonFace;
    bool ShowSmooth = false;
    bool UseRotation = false;
    double Rotation = 0;     // degrees clockwise about the middle, in the control's own size
    bool UseShadow = false;  // under text layers
    int ShadowDistance = 0;  // pixels right and down
    Colour ShadowColor = 0;
    bool operator==(const TileState&) const = default;
};

/// A finished picture never has more pixels; what is larger is painted directly.
inline constexpr std::int64_t FinishedPixelLimit = 16'000'000;

/// The key colour that the picture really uses: its top left pixel or the one given.
Colour KeyColourOf(const TileState& state, const QImage& picture);
/// The same where it hides anything, plain, otherwise NoColour: without UseTransparency, for what is no
/// colour, and where the top left pixel rules and can be seen through.
inline constexpr Colour NoColour = -1;
Colour HiddenColourOf(const TileState& state, const QImage& picture);

/// The picture keyed, stretched to the size, rotated. Keyed first, then stretched. The picture is RGB32 or
/// premultiplied ARGB32, and so is the result. `scale` is the number of screen pixels to a pixel of the
/// skin; without smoothness each of these is a square of one colour. Null beyond FinishedPixelLimit.
QImage FinishedPicture(const QImage& picture, const TileState& state, Size size, int scale = 1);

/// The whole face. `picture` is the one to show, may be null. `finished`, when not null, is used in place of
/// FinishedPicture (the widget's cache). Opaque without a picture it is a plain raised face.
void PaintTile(QPainter& painter, const TileState& state, const TileLayers& layers, Size size,
               const QImage* picture, const QImage* finished = nullptr);

}  // namespace ornavo
