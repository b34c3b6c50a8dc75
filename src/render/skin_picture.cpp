// SPDX-License-Identifier: MIT
#include "render/skin_picture.h"

#include "base/paths.h"
#include "document/current_skin.h"

namespace ornavo {

PictureRef LoadSkinPicture(std::string_view name) {
    const std::filesystem::path path = FindSkinPicture(name);
    return path.empty() ? nullptr : LoadPicture(path);
}

void SetTilePicture(PictureRef& plain, std::string& animated, std::string_view name) {
    animated.clear();
    if (GetFileExtension(name) == ".gif") {
        const std::filesystem::path path = FindSkinPicture(name);
        if (!path.empty() && IsAnimatedGIF(path)) {
            animated = ToText(path);
            return;
        }
    }
    plain = LoadSkinPicture(name);
}

}  // namespace ornavo
