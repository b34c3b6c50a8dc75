// SPDX-License-Identifier: MIT
#include "platform/tile_face.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/failure.h"
#include "base/text.h"
#include "platform/control.h"
#include "platform/fonts.h"

namespace ornavo {
namespace {

constexpr Colour EdgeLight = Rgb(255, 255, 255), EdgeDark = 0;
constexpr int LightAlpha = 170, DarkAlpha = 90;

Colour ColourOfPixel(QRgb pixel) {
    return Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

/// What makes a pixel of the picture comparable with an opaque colour: 32-bit pixels without alpha have any.
QRgb OpaqueBits(const QImage& picture) {
    return picture.hasAlphaChannel() ? 0 : qRgb(0, 0, 0);
}

QRgb PixelOf(Colour colour) {
    return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

bool Holds(const QImage& picture, Colour key) {
    if (key == NoColour) return false;
    const QRgb hidden = PixelOf(key), opaque = OpaqueBits(picture);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto isHidden = [=](QRgb pixel) { return (pixel | opaque) == hidden; };
        if (std::any_of(line, line + picture.width(), isHidden)) return true;
    }
    return false;
}

QImage Keyed(const QImage& picture, const TileState& state) {
    const Colour key = HiddenColourOf(state, picture);
    if (key == NoColour) return picture;
    const QRgb hidden = PixelOf(key), opaque = OpaqueBits(picture);
    QImage keyed(picture.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < keyed.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        std::transform(from, from + keyed.width(), reinterpret_cast<QRgb*>(keyed.scanLine(y)),
                       [=](QRgb pixel) { return (pixel | opaque) == hidden ? QRgb{0} : pixel | opaque; });
    }
    return keyed;
}

/// Each pixel of the result is the pixel of the picture under its middle.
QImage Stretched(const QImage& picture, const QSize& size) {
    if (picture.size() == size) return picture;
    QImage result(size, picture.format());
    if (result.isNull()) return result;
    std::vector<int> from(static_cast<std::size_t>(size.width()));
    const auto under = [](int at, int source, int target) {
        return static_cast<int>((2 * std::int64_t{at} + 1) * source / (2 * std::int64_t{target}));
    };
    for (int x = 0; x < size.width(); ++x)
        from[static_cast<std::size_t>(x)] = under(x, picture.width(), size.width());
    for (int y = 0; y < size.height(); ++y) {
        const auto* source =
            reinterpret_cast<const QRgb*>(picture.constScanLine(under(y, picture.height(), size.height())));
        auto* target = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (const int x : from) *target++ = source[x];
    }
    return result;
}

double QuarterTurns(const TileState& state) {
    if (!state.UseRotation || !std::isfinite(state.Rotation)) return 0;
    const double turns = std::fmod(state.Rotation, 360.0) / 90.0;
    return turns < 0 ? turns + 4 : turns;
}

/// Cosine and sine, exact at quarter turns.
std::pair<double, double> Direction(double quarterTurns) {
    if (quarterTurns == std::floor(quarterTurns)) {
        constexpr int wave[] = {1, 0, -1, 0, 1, 0};
        const int turn = static_cast<int>(quarterTurns) % 4;
        return {wave[turn], turn == 1 ? 1 : turn == 3 ? -1 : 0};
    }
    const double angle = quarterTurns * std::numbers::pi / 2;
    return {std::cos(angle), std::sin(angle)};
}

/// Rotates without blending: each pixel of the result is the one that the rotation brings under its middle.
QImage TurnedHard(const QImage& picture, double quarterTurns) {
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage result(source.size(), source.format());
    const auto [cosine, sine] = Direction(quarterTurns);
    const double middleX = source.width() / 2.0, middleY = source.height() / 2.0;
    for (int y = 0; y < result.height(); ++y) {
        auto* target = reinterpret_cast<QRgb*>(result.scanLine(y));
        const double down = y + 0.5 - middleY;
        for (int x = 0; x < result.width(); ++x) {
            const double right = x + 0.5 - middleX;
            const double fromX = std::floor(right * cosine + down * sine + middleX);
            const double fromY = std::floor(down * cosine - right * sine + middleY);
            const bool inside = fromX >= 0 && fromY >= 0 && fromX < source.width() && fromY < source.height();
            target[x] = inside ? reinterpret_cast<const QRgb*>(
                                     source.constScanLine(static_cast<int>(fromY)))[static_cast<int>(fromX)]
                               : 0;
        }
    }
    return result;
}

QImage TurnedSoft(const QImage& picture, double quarterTurns) {
    QImage result(picture.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
    painter.translate(picture.width() / 2.0, picture.height() / 2.0);
    painter.rotate(quarterTurns * 90);
    painter.translate(-picture.width() / 2.0, -picture.height() / 2.0);
    painter.drawImage(0, 0, picture);
    return result;
}

/// Quarter turns are made without blending if the sides allow it, so that the picture is not blurred
/// needlessly.
QImage Turned(const QImage& picture, double quarterTurns, bool smooth) {
    if (quarterTurns == 0) return picture;
    const bool whole = quarterTurns == std::floor(quarterTurns) &&
                       (quarterTurns == 2 || (picture.width() - picture.height()) % 2 == 0);
    return smooth && !whole ? TurnedSoft(picture, quarterTurns) : TurnedHard(picture, quarterTurns);
}

/// Paints a picture too large for a finished one by the painter's own transformation.
void PaintLarge(QPainter& painter, const QImage& picture, const TileState& state, const QRectF& area) {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, state.ShowSmooth);
    painter.translate(area.center());
    painter.rotate(QuarterTurns(state) * 90);
    painter.translate(-area.center());
    painter.drawImage(area, Keyed(picture, state));
    painter.restore();
}

void PaintPicture(QPainter& painter, const TileState& state, Size size, const QImage& picture,
                  const QImage* finished) {
    const QRect area(0, 0, size.width, size.height);
    if (finished && !finished->isNull()) {
        painter.drawImage(area.topLeft(), *finished);
        return;
    }
    const QImage made = FinishedPicture(picture, state, size);
    if (made.isNull())
        PaintLarge(painter, picture, state, area);
    else
        painter.drawImage(area.topLeft(), made);
}

void PaintFrame(QPainter& painter, Size size, const QColor& leftTop, const QColor& rightBottom) {
    painter.fillRect(0, 0, size.width, 1, leftTop);
    painter.fillRect(0, 0, 1, size.height, leftTop);
    painter.fillRect(0, size.height - 1, size.width, 1, rightBottom);
    painter.fillRect(size.width - 1, 0, 1, size.height, rightBottom);
}

void PaintGround(QPainter& painter, const TileState& state, Size size, bool plain) {
    if (state.BackStyle == 0) return;
    painter.fillRect(0, 0, size.width, size.height, ScreenColour(state.BackColor));
    if (plain)
        PaintFrame(painter, size, ScreenColour(BlendColor(EdgeLight, state.BackColor, LightAlpha)),
                   ScreenColour(BlendColor(EdgeDark, state.BackColor, DarkAlpha)));
}

/// A distance in pixels, which may be any number in a file, clamped so that int arithmetic cannot overflow.
int WholePixels(double distance) {
    return static_cast<int>(std::clamp(distance, -1e8, 1e8));
}

/// The left end of something of this width, aligned between Left and the trimmed right end.
int AlignedLeft(const TileLayer& layer, Size size, int width) {
    const auto left = static_cast<double>(layer.Left);
    const double right = size.width - static_cast<double>(layer.RightTrim);
    const double at = layer.Alignment == LeftAligned    ? left
                      : layer.Alignment == RightAligned ? right - width
                                                        : (left + right - width) / 2;
    return WholePixels(std::floor(at));
}

/// Left is the distance from the side that Alignment names, or from the middle.
int PictureLeft(const TileLayer& layer, Size size, int width) {
    const auto left = static_cast<double>(layer.Left);
    const double at = layer.Alignment == LeftAligned    ? left
                      : layer.Alignment == RightAligned ? size.width - width - left
                                                        : (size.width - width) / 2.0 + left;
    return WholePixels(std::floor(at));
}

void PaintText(QPainter& painter, const TileState& state, const TileLayer& layer, Size size) {
    if (layer.Text.empty()) return;
    painter.save();
    painter.setFont(ScreenFont(layer.Font));
    const QString text = ShownText(layer.Font, layer.Text);
    const auto [line, area] = PlaceOfText(layer, size);
    const QPoint at(line.left, line.top + painter.fontMetrics().ascent());
    const auto draw = [&, &line = line, &area = area](int offset, Colour colour) {
        if (line.width > area.width)
            painter.setClipRect(QRect(area.left + offset, 0, area.width, area.height));
        painter.setPen(ScreenColour(colour));
        painter.drawText(at + QPoint(offset, offset), text);
    };
    if (state.UseShadow) draw(std::clamp(state.ShadowDistance, -10000, 10000), state.ShadowColor);
    draw(0, layer.ForeColor);
    painter.restore();
}

void PaintLayer(QPainter& painter, const TileState& state, const TileLayer& layer, Size size) {
    if (!layer.Visible) return;
    if (layer.IsText) {
        PaintText(painter, state, layer, size);
    } else if (layer.Picture) {
        const int top = WholePixels(std::round(layer.Top));
        const QImage& plain = layer.Picture->image();
        const bool isFine = painter.device()->devicePixelRatio() > 1 && !layer.Picture->fine.isNull();
        const QRect area(PictureLeft(layer, size, plain.width()), top, plain.width(), plain.height());
        painter.drawImage(area, isFine ? layer.Picture->fine : plain);
    }
}

}  // namespace

TileLayer& TileLayers::Add(std::string_view key) {
    for (const TileLayer& layer : layers_)
        if (EqualText(layer.Key, key)) throw Failure(Failure::DuplicateKey, "TileButton");
    layers_.emplace_back().Key = key;
    return layers_.back();
}

TileLayer& TileLayers::Item(std::string_view key) {
    for (TileLayer& layer : layers_)
        if (EqualText(layer.Key, key)) return layer;
    throw Failure(Failure::NotFound, "TileButton");
}

void TileLayers::Remove(std::string_view key) {
    const TileLayer& found = Item(key);
    layers_.erase(layers_.begin() + (&found - layers_.data()));
}

Colour KeyColourOf(const TileState& state, const QImage& picture) {
    if (!state.TransColorTopLeft || picture.isNull()) return state.TransparentColor;
    return ColourOfPixel(picture.pixel(0, 0));
}

Colour HiddenColourOf(const TileState& state, const QImage& picture) {
    if (!state.UseTransparency || picture.isNull()) return NoColour;
    // Such a picture has its own transparency.
    if (state.TransColorTopLeft && qAlpha(picture.pixel(0, 0)) != 255) return NoColour;
    return TranslateColor(KeyColourOf(state, picture));
}

bool IsOpaque(const TileState& state, const QImage& picture) {
    if (state.BackStyle != 0) return true;
    return !picture.isNull() && !picture.hasAlphaChannel() && QuarterTurns(state) == 0 &&
           !Holds(picture, HiddenColourOf(state, picture));
}

QImage FinishedPicture(const QImage& picture, const TileState& state, Size size, int scale) {
    const std::int64_t pixels = std::int64_t{size.width} * size.height * scale * scale;
    if (picture.isNull() || size.width < 1 || size.height < 1 || pixels > FinishedPixelLimit) return {};
    const QSize target(size.width, size.height);
    const double turns = QuarterTurns(state);
    const bool isAsItIs =
        turns == 0 && picture.size() == target * scale && !Holds(picture, HiddenColourOf(state, picture));
    if (isAsItIs) {
        QImage same = picture;
        same.setDevicePixelRatio(scale);
        return same;
    }
    QImage image = Keyed(picture, state);
    if (state.ShowSmooth) {
        if (image.size() != target * scale)
            image = image.scaled(target * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        image = Turned(image, turns, true);
    } else {
        // A pixel of the skin is a square of whole pixels of the screen.
        image = Stretched(Turned(Stretched(image, target), turns, false), target * scale);
    }
    image.setDevicePixelRatio(scale);
    return image;
}

TextPlace PlaceOfText(const TileLayer& layer, Size size) {
    const QFontMetrics font(ScreenFont(layer.Font));
    const int width = font.horizontalAdvance(ShownText(layer.Font, layer.Text));
    const double end = size.width - static_cast<double>(layer.RightTrim);
    const int room = std::max(0, WholePixels(end - static_cast<double>(layer.Left)));
    return {{AlignedLeft(layer, size, width), WholePixels(std::round(layer.Top)), width, font.height()},
            {WholePixels(std::trunc(layer.Left)), 0, room, size.height}};
}

void PaintTile(QPainter& painter, const TileState& state, const TileLayers& layers, Size size,
               const QImage* picture, const QImage* finished) {
    if (size.width < 1 || size.height < 1) return;
    const bool plain = !picture || picture->isNull();
    PaintGround(painter, state, size, plain);
    if (!plain) PaintPicture(painter, state, size, *picture, finished);
    for (const TileLayer& layer : layers) PaintLayer(painter, state, layer, size);
    if (!state.ShowBorder) return;
    const QColor border = ScreenColour(state.BorderColor);
    PaintFrame(painter, size, border, border);
}

}  // namespace ornavo
