// SPDX-License-Identifier: MIT
#include "platform/tile_face.h"

#include "platform/control.h"

namespace ornavo {
namespace {

using Art = std::vector<std::string>;

// One letter to a pixel.
const std::map<char, QRgb> Paint = {{'.', 0},          {'k', 0xFF000000}, {'w', 0xFFFFFFFF},
                                    {'r', 0xFFFF0000}, {'g', 0xFF00FF00}, {'b', 0xFF0000FF},
                                    {'m', 0xFFFF00FF}, {'n', 0xFFFF00FE}, {'y', 0xFFFFFF00}};

QImage Drawn(const Art& art) {
    QImage image(static_cast<int>(art[0].size()), static_cast<int>(art.size()),
                 QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, Paint.at(art[y][x]));
    return image;
}

Art Read(const QImage& image) {
    Art art(static_cast<std::size_t>(image.height()), std::string(image.width(), '?'));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            for (const auto& [letter, pixel] : Paint)
                if (pixel == image.pixel(x, y)) art[y][x] = letter;
    return art;
}

QImage Painted(const TileState& state, Size size, const QImage* picture, const TileLayers& layers,
               const QColor& ground = Qt::transparent) {
    QImage image(size.width, size.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    PaintTile(painter, state, layers, size, picture);
    return image;
}

Art Face(const TileState& state, Size size, const QImage* picture, const TileLayers& layers = {}) {
    return Read(Painted(state, size, picture, layers));
}

TileState Seen(double rotation = 0) {
    TileState state;
    state.BackStyle = 0;
    state.UseRotation = rotation != 0;
    state.Rotation = rotation;
    return state;
}

TEST(Face, StretchesWithoutMixingUnlessItIsSmooth) {
    const QImage picture = Drawn({"rg", "bw"}), wide = Drawn({"kw"});
    EXPECT_EQ(Face(Seen(), {4, 4}, &picture), (Art{"rrgg", "rrgg", "bbww", "bbww"}));
    EXPECT_EQ(Face(Seen(), {5, 1}, &picture), (Art{"bbwww"}));
    EXPECT_EQ(Face(Seen(), {1, 2}, &picture), (Art{"g", "w"}));
    EXPECT_EQ(Read(FinishedPicture(picture, Seen(90), {2, 2}, 2)), (Art{"bbrr", "bbrr", "wwgg", "wwgg"}));
    TileState state = Seen();
    state.ShowSmooth = true;
    const QImage smooth = FinishedPicture(wide, state, {8, 1});
    EXPECT_LT(qRed(smooth.pixel(0, 0)), 64);
    EXPECT_GT(qRed(smooth.pixel(7, 0)), 191);
    EXPECT_NEAR(qRed(smooth.pixel(4, 0)), 128, 64);
    EXPECT_EQ(Face(state, {2, 1}, &wide), (Art{"kw"})) << "nothing to stretch";
}

TEST(Face, TheKeyColourGoesBeforeStretching) {
    const QImage picture = Drawn({"mnrm", "rmmr"}), clear = Drawn({".k", "kr"});
    TileState state = Seen();
    state.TransparentColor = Rgb(255, 0, 0);
    EXPECT_EQ(Face(state, {4, 2}, &picture), (Art{"mnrm", "rmmr"})) << "no key without UseTransparency";
    state.UseTransparency = true;
    EXPECT_EQ(Face(state, {4, 2}, &picture), (Art{"mn.m", ".mm."}));
    state.TransColorTopLeft = true;
    EXPECT_EQ(Face(state, {4, 2}, &picture), (Art{".nr.", "r..r"})) << "the comparison is exact";
    EXPECT_EQ(KeyColourOf(state, picture), Rgb(255, 0, 255));
    EXPECT_EQ(KeyColourOf(state, QImage()), Rgb(255, 0, 0));
    EXPECT_EQ(Face(state, {2, 2}, &clear), (Art{".k", "kr"})) << "a clear corner hides no black";
    state.ShowSmooth = true;
    const QImage wide = FinishedPicture(Drawn({"mmrr", "mmrr"}), state, {16, 8});
    for (int x = 0; x < 16; ++x) EXPECT_EQ(qBlue(wide.pixel(x, 4)), 0) << "no rim of the key colour at " << x;
}

TEST(Face, CoversWhatIsBehindIfNoPixelIsClear) {
    const QImage picture = Drawn({"rg"}).convertToFormat(QImage::Format_RGB32);
    TileState state = Seen();
    EXPECT_TRUE(IsOpaque(state, picture) && !IsOpaque(state, QImage()) && !IsOpaque(state, Drawn({"rg"})));
    EXPECT_FALSE(IsOpaque(Seen(90), picture));
    state.UseTransparency = true;
    state.TransparentColor = Rgb(0, 0, 255);
    EXPECT_TRUE(IsOpaque(state, picture));
    state.TransparentColor = Rgb(0, 255, 0);
    EXPECT_FALSE(IsOpaque(state, picture));
}

TEST(Face, QuarterTurnsAreExactAndOthersKeepTheMiddle) {
    const QImage square = Drawn({"rgb", "kwy", "..."}), wide = Drawn({"rggb", "kwwy"});
    const std::pair<double, Art> rows[] = {{90, {".kr", ".wg", ".yb"}},  {180, {"...", "ywk", "bgr"}},
                                           {270, {"by.", "gw.", "rk."}}, {-90, {"by.", "gw.", "rk."}},
                                           {450, {".kr", ".wg", ".yb"}}, {360, {"rgb", "kwy", "..."}}};
    EXPECT_EQ(Face(Seen(90), {4, 2}, &wide), (Art{".wg.", ".wg."})) << "cut by the control's own size";
    QImage plain(15, 15, QImage::Format_RGB32);
    plain.fill(Qt::red);
    for (const bool smooth : {false, true}) {
        TileState state = Seen(45);
        state.ShowSmooth = smooth;
        const QImage turned = FinishedPicture(plain, state, {15, 15});
        EXPECT_EQ(turned.pixel(7, 0), qRgb(255, 0, 0));
        EXPECT_EQ(qAlpha(turned.pixel(0, 0)) + qAlpha(turned.pixel(14, 14)), 0);
        for (const auto& [degrees, art] : rows) {
            state.Rotation = degrees;
            EXPECT_EQ(Face(state, {3, 3}, &square), art) << degrees;
        }
    }
}

TEST(Face, GroundAndBorder) {
    const QImage picture = Drawn({"r.", ".r"});
    TileState state;
    state.BackColor = Rgb(0, 0, 255);
    state.BorderColor = Rgb(255, 255, 0);
    EXPECT_EQ(Face(state, {4, 4}, &picture), (Art{"rrbb", "rrbb", "bbrr", "bbrr"}));
    EXPECT_EQ(Face(state, {4, 4}, nullptr), (Art{"????", "?bb?", "?bb?", "????"})) << "a raised edge";
    state.ShowBorder = true;
    EXPECT_EQ(Face(state, {4, 4}, &picture), (Art{"yyyy", "yrby", "ybry", "yyyy"}));
    state.BackStyle = 0;
    EXPECT_EQ(Face(state, {4, 3}, nullptr), (Art{"yyyy", "y..y", "yyyy"}));
}

TEST(Face, PictureLayersStandFromTheEndThatAlignmentNames) {
    TileLayers layers;
    TileLayer& layer = layers.Add("one");
    layer.IsText = false;
    layer.Picture = std::make_shared<Picture>(Drawn({"rg"}));
    layer.Top = 1;
    for (const auto& [alignment, left, row] :
         {std::tuple{0, 3.0F, "...rg..."}, {1, 2.0F, "....rg.."}, {2, 2.0F, ".....rg."}}) {
        layer.Alignment = alignment;
        layer.Left = left;
        EXPECT_EQ(Face(Seen(), {8, 2}, nullptr, layers), (Art{"........", row})) << alignment;
    }
    layer.Visible = false;
    EXPECT_EQ(Face(Seen(), {2, 1}, nullptr, layers), (Art{".."}));
}

/// The box of the pixels of one colour; text comes with soft edges, so near it counts.
QRect BoxOf(const TileState& state, const TileLayers& layers, const QColor& colour) {
    const QImage image = Painted(state, {120, 40}, nullptr, layers, Qt::white);
    QRect box;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 120; ++x)
            if (image.pixelColor(x, y) == colour) box |= QRect(x, y, 1, 1);
    return box;
}

TEST(Face, TextStandsInItsArea) {
    TileState state = Seen();
    TileLayers layers;
    TileLayer& layer = layers.Add("Caption");
    layer.Text = "HIIH";
    layer.Font = {"Arial", 12, true};
    layer.ForeColor = Rgb(255, 0, 0);
    layer.Alignment = 0;
    EXPECT_LE(BoxOf(state, layers, Qt::red).left(), 4);
    layer.Alignment = 1;
    EXPECT_GE(BoxOf(state, layers, Qt::red).right(), 115);
    layer.Alignment = 2;
    const QRect middle = BoxOf(state, layers, Qt::red);
    EXPECT_NEAR(middle.center().x(), 60, 2);
    layer.Top = 10;
    layer.Left = 20;
    EXPECT_EQ(BoxOf(state, layers, Qt::red), middle.translated(10, 10));
    state.UseShadow = true;
    state.ShadowDistance = 5;
    state.ShadowColor = Rgb(0, 0, 255);
    EXPECT_EQ(BoxOf(state, layers, Qt::blue).bottomRight(), middle.translated(15, 15).bottomRight());
    EXPECT_EQ(BoxOf(state, layers, Qt::red), middle.translated(10, 10)) << "the text lies over its shadow";
    state.UseShadow = false;
    layer.Alignment = 0;
    layer.RightTrim = 90;
    EXPECT_LT(BoxOf(state, layers, Qt::red).right(), 30) << "cut at the end of its area";
}

TEST(Face, HugeSizesTakeNoHugeImage) {
    const QImage picture = Drawn({"rg", "bw"});
    EXPECT_TRUE(FinishedPicture(picture, Seen(), {100000, 100000}).isNull());
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.translate(-9998, -9998);
    PaintTile(painter, Seen(), {}, {20000, 20000}, &picture);
    painter.end();
    EXPECT_EQ(Read(image), (Art{"rrgg", "rrgg", "bbww", "bbww"}));
}

}  // namespace
}  // namespace ornavo
