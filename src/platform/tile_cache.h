// SPDX-License-Identifier: MIT
// Caches the finished pictures of buttons, within a fixed number of bytes.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/tile_face.h"

namespace ornavo {

inline constexpr std::int64_t TileCacheBytes = std::int64_t{64} << 20;

/// FinishedPicture for a picture that does not change. Returns the cached object for the same picture, key
/// colour, smoothness, size, scale and angle. Null if FinishedPicture is null.
std::shared_ptr<const QImage> FinishedTile(const PictureRef& picture, const TileState& state, Size size,
                                           int scale);
/// The bytes in the cache.
std::int64_t TileCacheSize();

}  // namespace ornavo
