// SPDX-License-Identifier: MIT
#include "document/skin_copy.h"

#include "document/skin_packaging.h"

namespace ornavo {
namespace {

/// A copy of the collection with copies of its items.
template <class Collection>
std::shared_ptr<Collection> CopyOfItems(const Collection& items) {
    auto copy = std::make_shared<Collection>(items);
    copy->CopyItems();
    return copy;
}

/// The same for items that have a font of their own.
template <class Collection>
std::shared_ptr<Collection> CopyWithFonts(const Collection& items) {
    auto copy = CopyOfItems(items);
    for (const auto& item : *copy)
        if (item->Font) item->Font = std::make_shared<Font>(*item->Font);
    return copy;
}

}  // namespace

dbSkinRef DeepCopy(const dbSkin& skin) {
    auto copy = std::make_shared<dbSkin>(skin);
    copy->dbSkinPrefs = CopyWithFonts(*skin.dbSkinPrefs);
    copy->dbLayouts = CopyOfItems(*skin.dbLayouts);
    for (const dbLayoutRef& layout : *copy->dbLayouts) {
        layout->dbPoints = CopyOfItems(*layout->dbPoints);
        layout->dbLayoutElements = CopyWithFonts(*layout->dbLayoutElements);
    }
    return copy;
}

std::string BytesOfSave(const dbSkin& skin, bool keepExisting) {
    const std::vector<PictureStep> steps = PlanSave(skin, keepExisting);
    const dbSkinRef copy = DeepCopy(skin);
    copy->SkinName = StorableSkinName(skin);
    Probation changes;
    auto step = steps.begin();
    VisitPictures(*copy, [&](const std::string&, const auto&, const auto& store) {
        store(changes, (step++)->picture->stored);
    });
    changes.Keep();
    return copy->FileBytes();
}

}  // namespace ornavo
