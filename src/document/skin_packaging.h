// SPDX-License-Identifier: MIT
// What a save does with the pictures of a skin: planned first, which changes nothing, and carried out then.
// The model's changes are kept on probation: they are taken back unless the save comes to its end.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "document/codes.h"
#include "document/dbskin.h"

namespace ornavo {

/// Sets fields, and puts all of them back as they were unless they are kept.
class Probation {
public:
    Probation() = default;
    ~Probation() {
        for (auto undo = undo_.rbegin(); undo != undo_.rend(); ++undo) (*undo)();
    }
    Probation(const Probation&) = delete;
    Probation& operator=(const Probation&) = delete;

    template <class T>
    void Set(T& field, T now) {
        if (field == now) return;
        undo_.push_back([&field, before = field]() mutable { field = std::move(before); });
        field = std::move(now);
    }
    void Keep() { undo_.clear(); }

private:
    std::vector<std::function<void()>> undo_;
};

/// The skin's name, or one that the file can hold and that no other skin beside it has.
std::string StorableSkinName(const dbSkin& skin);

/// What a save does with one reference to a picture.
struct PictureStep {
    std::string given;   // the reference as it stands
    std::string stored;  // as the file will have it; "" for one that is blank or leads nowhere
    std::filesystem::path source, target;  // empty where there is none
    bool isBlank = false;
    bool isCopied = false;   // source to target; otherwise no file is touched
    bool isMade = false;     // the target is there only once an earlier step has made it
    bool isRefused = false;  // it would take the place of the settings
};

/// What a save will do. Nothing has been done yet.
struct SavePlan {
    std::vector<PictureStep> pictures;  // as VisitPictures goes
    std::vector<std::string> losses;    // what would be dropped, or merged with another; a line each
};
/// keepExisting leaves what has a picture's name in the skin's folder.
SavePlan PlanSave(const dbSkin& skin, bool keepExisting);
/// Copies the picture, whole or not at all, and gives the reference that is to be stored. Where no copy can
/// be made it is a path that leads to the picture, and the reason is added to `failures` unless it is there.
std::string CarryOut(const PictureStep& step, std::vector<std::string>& failures);

/// The items whose Order is between 1 and their count, lowest first; the others have no place in the file.
template <class Collection>
auto InOrder(const Collection& items) {
    using Ref = typename Collection::Ref;
    std::vector<std::vector<Ref>> places(static_cast<std::size_t>(items.Count()));
    for (const Ref& item : items)
        if (item->Order >= 1 && item->Order <= items.Count())
            places[static_cast<std::size_t>(item->Order - 1)].push_back(item);
    std::vector<Ref> ordered;
    for (auto& place : places) ordered.insert(ordered.end(), place.begin(), place.end());
    return ordered;
}

/// The pictures of an element, in the order of the file.
struct PictureField {
    const char* name;
    std::string dbLayoutElement::*field;
};
inline constexpr PictureField PictureFields[] = {{"Normal", &dbLayoutElement::PicNormal},
                                                 {"On", &dbLayoutElement::PicOn},
                                                 {"Over", &dbLayoutElement::PicOver},
                                                 {"Down", &dbLayoutElement::PicDown},
                                                 {"Disabled", &dbLayoutElement::PicDisabled}};

/// Goes through the references to pictures that aren't empty, in the order of the file: `visit` gets the
/// text, a function that tells in words whose it is, and one that sets it on probation.
template <class Visit>
void VisitPictures(const dbSkin& skin, Visit&& visit) {
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs) {
        std::string text;
        if (pref->PrefType == KindPicture) Attempt([&] { text = pref->value.ToText(); });
        if (text.empty()) continue;
        visit(
            text, [&] { return "preference " + pref->Key; },
            [&](Probation& probation, std::string now) {
                probation.Set(pref->value, Value(std::move(now)));
            });
    }
    for (const dbLayoutRef& layout : *skin.dbLayouts)
        for (const dbLayoutElementRef& element : InOrder(*layout->dbLayoutElements))
            for (const PictureField& picture : PictureFields) {
                std::string& field = (*element).*picture.field;
                if (field.empty()) continue;
                visit(
                    field, [&] { return layout->LayoutName + ", " + element->Key + ", " + picture.name; },
                    [&](Probation& probation, std::string now) { probation.Set(field, std::move(now)); });
            }
}

}  // namespace ornavo
