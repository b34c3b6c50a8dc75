// SPDX-License-Identifier: MIT
#include "render/song_layers.h"

#include <string>

#include "base/failure.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr int IconStep = 14;  // pixels from one small icon to the next
constexpr int Stars = 5, FullStars = 4;

void TakeNumber(float& field, std::string_view key) {
    Attempt([&] { field = static_cast<float>(Pref(key).value.ToDouble()); });
}

void TakeWhole(int& field, std::string_view key) {
    Attempt([&] { field = Pref(key).value.ToLong(); });
}

/// A text of a row: its layer, and the keys of its preferences.
struct TextRow {
    std::string_view layer, text, font, align, left, top, colour;
    double fontSize;
};
constexpr TextRow SongOfTwo = {
    "Song",          "The Lantern Over The Reef", "SOD_SongFontD",    "SOD_SongCapAlign",
    "SOD_SongXTrim", "SOD_SongOffsetYD",          "SO_SongTextColor", 13};
constexpr TextRow SongOfOne = {"Song",          "Trance",           "SOS_SongFontS",    "SOS_SongCapAlign",
                               "SOS_SongXTrim", "SOS_SongOffsetYS", "SO_SongTextColor", 13};
constexpr TextRow Artist = {
    "Artist",          "Quillmar",          "SOD_ArtistFont",      "SOD_ArtistCapAlign",
    "SOD_ArtistXTrim", "SOD_ArtistOffsetY", "SOD_ArtistTextColor", 7};

void AddText(TileButton& button, const TextRow& row) {
    TileLayer& layer = button.Elements.Add(row.layer);
    TakeFont(layer, row.font, row.fontSize);
    TakeWhole(layer.Alignment, row.align);
    layer.Text = row.text;
    TakeNumber(layer.Left, row.left);
    TakeNumber(layer.Top, row.top);
    layer.RightTrim = layer.Left;
    TakeWhole(layer.ForeColor, row.colour);
}

/// An icon of a row: its layer, and the keys of its preferences.
struct IconRow {
    std::string_view layer, image, align, left, top;
};
constexpr IconRow GenreIcon = {"Icon", "Genre", "SO_IconsAlign", "SO_IconsX", "SO_IconsY"};
constexpr IconRow Favorite = {"Favorite", "Favorite", "SOD_IconsUserAlign", "SOD_IconsUserX",
                              "SOD_IconsUserY"};
constexpr IconRow Party = {"Party", "Party", "SOD_IconsUserAlign", "SOD_IconsUserX", "SOD_IconsUserY"};

TileLayer& AddIcon(TileButton& button, const IconRow& row, std::string_view image) {
    TileLayer& layer = button.Elements.Add(row.layer);
    layer.IsText = false;
    if (!image.empty()) Attempt([&] { layer.Picture = TargetForm->host().sample.img_Kiosk.Item(image); });
    TakeWhole(layer.Alignment, row.align);
    TakeNumber(layer.Left, row.left);
    TakeNumber(layer.Top, row.top);
    return layer;
}

/// The place of the first star and the step to the next, in pixels. A row at the right end grows to the left.
struct StarRow {
    float left = 0;
    float step = IconStep;
};

StarRow StarsFor(int alignment) {
    StarRow row;
    TakeNumber(row.left, "SOD_IconsRateX");
    if (alignment == RightAligned) row = {row.left + 4 * IconStep, -IconStep};
    if (alignment == Centred) row.left -= 1.5F * IconStep;
    return row;
}

void AddStars(TileButton& button) {
    int alignment = LeftAligned;
    TakeWhole(alignment, "SOD_IconsRateAlign");
    const StarRow row = StarsFor(alignment);
    for (int i = 0; i < Stars; ++i) {
        TileLayer& star = AddIcon(
            button,
            {"Star" + std::to_string(i), "", "SOD_IconsRateAlign", "SOD_IconsRateX", "SOD_IconsRateY"},
            i < FullStars ? "StarFull" : "StarEmpty");
        star.Left = row.left + static_cast<float>(i) * row.step;
    }
}

}  // namespace

void TakeFont(TileLayer& layer, std::string_view key, double defaultSize) {
    Attempt([&] { layer.Font = *GetPrefFont(key, defaultSize); });
    layer.Height = TextHeight(layer.Font);
}

void SetupSongLayers(TileButton& button, SongRow row) {
    const bool isOneLine = row == SongRow::OneLine;
    button.Elements.Clear();
    AddText(button, isOneLine ? SongOfOne : SongOfTwo);
    AddIcon(button, GenreIcon, isOneLine ? GenreIcon.image : "");
    if (isOneLine) return;
    AddText(button, Artist);
    AddIcon(button, Favorite, Favorite.image);
    AddIcon(button, Party, Party.image).Left += IconStep;
    AddStars(button);
}

}  // namespace ornavo
