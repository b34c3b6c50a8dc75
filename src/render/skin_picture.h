// SPDX-License-Identifier: MIT
// A picture's name becomes a picture of the current skin.
#pragma once

#include <string>
#include <string_view>

#include "platform/pictures.h"

namespace ornavo {

/// Null for an empty name, a missing file or one that is no picture.
PictureRef LoadSkinPicture(std::string_view name);

/// One of a button's three pictures: an animated GIF goes as its path into the animated property, anything
/// else as a picture into the plain one, and the animated property is emptied.
void SetTilePicture(PictureRef& plain, std::string& animated, std::string_view name);

}  // namespace ornavo
