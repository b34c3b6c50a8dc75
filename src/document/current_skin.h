// SPDX-License-Identifier: MIT
// The current skin and layout, and where the files of a skin's pictures are.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "document/dbskin.h"

namespace ornavo {

extern dbSkinRef objSkin;             // a new one at start; replaced when a skin is opened or created
extern dbLayoutRef objCurrentLayout;  // an empty one until a skin is opened

/// Whether the current layout belongs to a skin.
inline bool LayoutIsOpen() {
    return objSkin && objCurrentLayout && !objCurrentLayout->Key.empty();
}

/// The path of a picture: "" for ""; a bare name is a file in the current skin's folder; a name with a
/// separator is returned unchanged.
std::string GetSkinPicturePath(std::string_view name);
/// The paths where the picture may be while `current` is the current skin, the most likely first.
std::vector<std::string> PicturePlaces(std::string_view name, const dbSkin& current);
/// The file of the picture, empty if there is none. It is looked for at its own path, then by its file name
/// in the folder of the name under which the skin was loaded, then in the skin's folder.
std::filesystem::path FindSkinPicture(std::string_view name);
/// The form in which a chosen picture is stored in the model: its bare name if it is in the skin's folder.
std::string MakeSkinRelative(std::string_view path);

}  // namespace ornavo
