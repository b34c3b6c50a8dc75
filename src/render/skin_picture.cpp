// SPDX-License-Identifier: MIT
#include "render/skin_picture.h"

#include "base/failure.h"
#include "base/paths.h"
#include "document/catalogue.h"
#include "document/current_skin.h"

namespace ornavo {

namespace {

using Load = PictureRef (*)(const std::filesystem::path&);

PictureRef LoadBy(Load load, std::string_view name) {
    const std::filesystem::path path = FindSkinPicture(name);
    return path.empty() ? nullptr : load(path);
}

void SetPicture(Load load, PictureRef& plain, std::string& animated, std::string_view name) {
    animated.clear();
    if (GetFileExtension(name) == ".gif") {
        const std::filesystem::path path = FindSkinPicture(name);
        if (!path.empty() && IsAnimatedGIF(path)) {
            animated = ToText(path);
            return;
        }
    }
    plain = LoadBy(load, name);
}

}  // namespace

PictureRef LoadSkinPicture(std::string_view name) {
    return LoadBy(LoadPicture, name);
}

std::vector<std::filesystem::path> PicturesOf(const dbLayout& layout) {
    std::vector<std::filesystem::path> files;
    const auto add = [&](std::string_view name) {
        if (name.empty() || GetFileExtension(name) == ".gif") return;
        if (std::filesystem::path file = FindSkinPicture(name); !file.empty())
            files.push_back(std::move(file));
    };
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
        add(element->PicNormal);
        if (element->ElementType != TypeMain) continue;
        for (const CatalogueRow& row : Catalogue)
            if (const dbSkinPrefRef pref = objSkin->dbSkinPrefs->Find(row.key);
                pref && row.caption == "Normal")
                Attempt([&] { add(pref->value.ToText()); });
    }
    return files;
}

void SetTilePicture(PictureRef& plain, std::string& animated, std::string_view name) {
    SetPicture(LoadPicture, plain, animated, name);
}

void SetSeldomPicture(PictureRef& plain, std::string& animated, std::string_view name) {
    SetPicture(LoadPictureForLater, plain, animated, name);
}

}  // namespace ornavo
