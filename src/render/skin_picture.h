// SPDX-License-Identifier: MIT
// Loads a picture of the current skin by its name.
#pragma once

#include <string>
#include <string_view>

#include "platform/pictures.h"

namespace ornavo {

/// Null for an empty name, a missing file or a file that is not a picture.
PictureRef LoadSkinPicture(std::string_view name);

/// Sets one of a button's pictures: an animated GIF as its path in `animated`; any other as a picture in
/// `plain`, with `animated` emptied.
void SetTilePicture(PictureRef& plain, std::string& animated, std::string_view name);

}  // namespace ornavo
