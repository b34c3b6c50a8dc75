// SPDX-License-Identifier: MIT
#include "render/kiosk_icons.h"

#include <algorithm>
#include <map>
#include <string>

#include "base/failure.h"
#include "base/find_row.h"
#include "base/text.h"
#include "platform/shown.h"

// Named here, because the linker drops parts of a library that nothing refers to, such as these resources.
static void InitResources() {
    Q_INIT_RESOURCE(kiosk);
}

namespace ornavo {
namespace {

constexpr std::string_view Keys[] = {
    "StarFull",   "StarHalf",   "StarEmpty",  "Favorite",  "Party",       "Lyrics",         "NoParty",
    "NoFavorite", "Rate",       "AlbumGenre", "AlbumYear", "ArtistGenre", "Genre",          "LastPlayed",
    "PLGen",      "Unplayed",   "db_Script",  "Category",  "Year",        "ArtistFavorite", "AlbumFavorite",
    "AlbumRate",  "ArtistRate", "Play",       "Stop",      "Artist",      "Album",          "Note",
};

QImage Resource(const std::string& name) {
    static const bool ready = (InitResources(), true);
    QImage image(Shown(":/kiosk/" + name));
    if (ready && !image.isNull()) image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

PictureRef Read(const std::string& name, const char* extension) {
    Picture picture(Resource(name + extension), Resource(name + "@2x" + extension));
    if (picture.image().isNull()) throw Failure(Failure::FileNotFound, "img_Kiosk");
    return std::make_shared<Picture>(std::move(picture));
}

}  // namespace

PictureRef ImageList::Item(std::string_view key) const {
    static std::map<std::string_view, PictureRef> read;
    const auto* known = FindRowIf(Keys, [&](std::string_view one) { return EqualText(one, key); });
    if (!known) throw Failure(Failure::NotFound, "img_Kiosk", "Element not found");
    PictureRef& picture = read[*known];
    if (!picture) picture = Read(std::string(*known), ".png");
    return picture;
}

PictureRef SampleAlbum() {
    static const PictureRef album = Read("album", ".jpg");
    return album;
}

}  // namespace ornavo
