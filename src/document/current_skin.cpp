// SPDX-License-Identifier: MIT
#include "document/current_skin.h"

#include <vector>

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"

namespace ornavo {

dbSkinRef objSkin = std::make_shared<dbSkin>();
dbLayoutRef objCurrentLayout = std::make_shared<dbLayout>();

std::string GetSkinPicturePath(std::string_view name) {
    if (name.empty() || ContainsSeparator(name)) return std::string(name);
    return objSkin->SkinFolder().append(name);
}

std::filesystem::path FindSkinPicture(std::string_view name) {
    if (TrimBlanks(name).empty()) return {};
    const std::string file = GetFileName(name);
    std::vector<std::string> places = {GetSkinPicturePath(name)};
    if (!objSkin->OldSkinName.empty())
        places.push_back(WithSeparator(objSkin->BasePath() + objSkin->OldSkinName) + file);
    places.push_back(objSkin->SkinFolder() + file);
    for (const std::string& place : places)
        if (FileExists(place)) return OnDisk(place);
    return {};
}

std::string MakeSkinRelative(std::string_view path) {
    const std::string folder = ToText(OnDisk(GetParentFolderName(path)));
    const bool inside = EqualText(folder, ToText(OnDisk(objSkin->SkinFolder())));
    return inside ? GetFileName(path) : std::string(path);
}

}  // namespace ornavo
