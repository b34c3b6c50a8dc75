// SPDX-License-Identifier: MIT
// Loads a picture of the current skin by its name.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "document/dblayouts.h"
#include "platform/pictures.h"

namespace ornavo {

/// Null for an empty name, a missing file or a file that is not a picture.
PictureRef LoadSkinPicture(std::string_view name);

/// The files of the pictures that the layout shows when it is composed, most of them, in the order of their
/// use. Animated ones are left out.
std::vector<std::filesystem::path> PicturesOf(const dbLayout& layout);

/// Sets one of a button's pictures: an animated GIF as its path in `animated`; any other as a picture in
/// `plain`, with `animated` emptied. One that is seldom shown is decoded later.
void SetTilePicture(PictureRef& plain, std::string& animated, std::string_view name);
void SetSeldomPicture(PictureRef& plain, std::string& animated, std::string_view name);

}  // namespace ornavo
