// SPDX-License-Identifier: MIT
#include "document/current_skin.h"

#include <vector>

#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"

namespace ornavo {

dbSkinRef objSkin = std::make_shared<dbSkin>();
dbLayoutRef objCurrentLayout = std::make_shared<dbLayout>();

namespace {

std::string PathIn(const dbSkin& skin, std::string_view name) {
    if (name.empty() || ContainsSeparator(name)) return std::string(name);
    return skin.SkinFolder().append(name);
}

}  // namespace

std::string GetSkinPicturePath(std::string_view name) {
    return PathIn(*objSkin, name);
}

std::vector<std::string> PicturePlaces(std::string_view name, const dbSkin& current) {
    const std::string file = GetFileName(name);
    std::vector<std::string> places = {PathIn(current, name)};
    if (!current.OldSkinName.empty())
        places.push_back(WithSeparator(current.BasePath() + current.OldSkinName) + file);
    places.push_back(current.SkinFolder() + file);
    return places;
}

std::filesystem::path FindSkinPicture(std::string_view name) {
    if (TrimBlanks(name).empty()) return {};
    if (const std::string file = FindFile(PathIn(*objSkin, name)); !file.empty()) return NativePath(file);
    for (const std::string& place : PicturePlaces(name, *objSkin))
        if (const std::string file = FindFile(place); !file.empty()) return NativePath(file);
    return {};
}

std::string MakeSkinRelative(std::string_view path) {
    const std::string folder = ToText(OnDisk(GetParentFolderName(path)));
    const bool inside = EqualText(folder, ToText(OnDisk(objSkin->SkinFolder())));
    return inside ? GetFileName(path) : std::string(path);
}

}  // namespace ornavo
