// SPDX-License-Identifier: MIT
// How large pictures may be.
#pragma once

#include <cstdint>

namespace ornavo {

inline constexpr std::int64_t PicturePixelLimit = 64'000'000;              // pixels of one picture
inline constexpr int PictureSideLimit = 16'384;                            // width and height in pixels
inline constexpr std::int64_t PictureByteLimit = std::int64_t{512} << 20;  // all pictures in use together
inline constexpr std::int64_t ThumbnailPixelLimit = 16'000'000;            // pixels of one picture

}  // namespace ornavo
