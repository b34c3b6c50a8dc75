// SPDX-License-Identifier: MIT
// The skin and the layout in hand. Everybody who draws or packages a picture finds it here.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "document/dbskin.h"

namespace ornavo {

extern dbSkinRef objSkin;             // a fresh one at start; replaced on open and on create
extern dbLayoutRef objCurrentLayout;  // an empty one until a skin is opened

/// Whether the current layout is one of a skin.
inline bool LayoutIsOpen() {
    return objSkin && objCurrentLayout && !objCurrentLayout->Key.empty();
}

/// "" for ""; a bare name lies in the current skin's folder; a name with a separator is taken as it stands.
std::string GetSkinPicturePath(std::string_view name);
/// The places where the picture may lie while a skin is the current one, the best first.
std::vector<std::string> PicturePlaces(std::string_view name, const dbSkin& current);
/// Where the picture really lies: its path, for a path that leads nowhere its bare name in the folder of the
/// name that the skin had when it was loaded, then in the skin's folder. Empty if it is nowhere.
std::filesystem::path FindSkinPicture(std::string_view name);
/// The form in which a chosen picture enters the model: bare if it lies in the skin's folder.
std::string MakeSkinRelative(std::string_view path);

}  // namespace ornavo
