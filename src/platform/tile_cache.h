// SPDX-License-Identifier: MIT
// Finished pictures of the buttons, kept within a fixed number of bytes and made again when they were
// dropped.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/tile_face.h"

namespace ornavo {

inline constexpr std::int64_t TileCacheBytes = std::int64_t{64} << 20;

/// FinishedPicture of a picture that doesn't change. The same object again while picture, key colour,
/// smoothness, size, scale and angle are the same and it is still kept. Null where FinishedPicture is.
std::shared_ptr<const QImage> FinishedTile(const PictureRef& picture, const TileState& state, Size size,
                                           int scale);
/// Bytes kept at present.
std::int64_t TileCacheSize();

}  // namespace ornavo
