// SPDX-License-Identifier: MIT
#include "platform/tile_cache.h"

#include <list>
#include <map>
#include <tuple>

namespace ornavo {
namespace {

using Key = std::tuple<qint64, Colour, bool, int, int, int, double>;

/// A finished picture and what it was made from.
struct Kept {
    Key key;
    std::shared_ptr<const QImage> image;
};

/// All finished pictures, found by key and dropped by age.
struct Cache {
    std::list<Kept> kept;  // the most recently used first
    std::map<Key, std::list<Kept>::iterator> byKey;
    std::int64_t bytes = 0;
};

Cache& cache() {
    static Cache only;
    return only;
}

Key KeyOf(const QImage& picture, const TileState& state, Size size, int scale) {
    return {picture.cacheKey(),
            HiddenColourOf(state, picture),
            state.ShowSmooth,
            size.width,
            size.height,
            scale,
            state.UseRotation ? state.Rotation : 0};
}

void DropSurplus() {
    Cache& all = cache();
    while (all.bytes > TileCacheBytes) {
        all.bytes -= all.kept.back().image->sizeInBytes();
        all.byKey.erase(all.kept.back().key);
        all.kept.pop_back();
    }
}

}  // namespace

std::shared_ptr<const QImage> FinishedTile(const PictureRef& picture, const TileState& state, Size size,
                                           int scale) {
    if (!picture) return nullptr;
    Cache& all = cache();
    const Key key = KeyOf(picture->image(), state, size, scale);
    if (const auto found = all.byKey.find(key); found != all.byKey.end()) {
        all.kept.splice(all.kept.begin(), all.kept, found->second);
        return found->second->image;
    }
    auto made = std::make_shared<const QImage>(FinishedPicture(picture->image(), state, size, scale));
    if (made->isNull()) return nullptr;
    all.kept.push_front({key, made});
    all.byKey[key] = all.kept.begin();
    all.bytes += made->sizeInBytes();
    DropSurplus();
    return made;
}

std::int64_t TileCacheSize() {
    return cache().bytes;
}

}  // namespace ornavo
