// SPDX-License-Identifier: MIT
// What a save does with the pictures of a skin. A plan is made first, which changes nothing, and then carried
// out.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "document/codes.h"
#include "document/dbskin.h"

namespace ornavo {

/// Changes fields of the model and restores them at its end, unless Keep was called.
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

/// The skin's name, or, if the file cannot hold it, a substitute that no other skin in the same folder has.
std::string StorableSkinName(const dbSkin& skin);

/// What a reference to a picture means to a save. Paths are texts with native separators, and "" if there is
/// none.
struct PictureReference {
    std::string given;   // the reference in the model
    std::string stored;  // the reference in the file; "" if blank or not found
    std::string source, target;
    bool isBlank = false;
    bool isRefused = false;  // its name is that of the settings file
};

/// What a save does at one place that refers to a picture.
struct PictureStep {
    std::shared_ptr<const PictureReference> picture;
    bool isCopied = false;  // source to target; otherwise no file is written
    bool isAgain = false;   // an earlier step with the same reference has copied it
    bool isMade = false;    // only an earlier step of the plan makes the target
};

/// What a save will do, a step for each reference in the order of VisitPictures. With keepExisting, a file of
/// the skin's folder is not replaced by a picture of the same name.
std::vector<PictureStep> PlanSave(const dbSkin& skin, bool keepExisting);
/// What that save would drop or replace by another picture, a line each.
std::vector<std::string> LossesOfSave(const dbSkin& skin, bool keepExisting);
/// Copies the picture, whole or not at all, and returns the reference to store. If the picture cannot be
/// copied, that is a path that leads to it, and the reason is appended to `failures` unless it is in there
/// already.
std::string CarryOut(const PictureStep& step, std::vector<std::string>& failures);

/// The items whose Order is between 1 and their count, the lowest first; the others are not written to the
/// file.
template <class Collection>
auto InOrder(const Collection& items) {
    using Ref = typename Collection::Ref;
    std::vector<Ref> ordered;
    ordered.reserve(static_cast<std::size_t>(items.Count()));
    for (const Ref& item : items)
        if (item->Order >= 1 && item->Order <= items.Count()) ordered.push_back(item);
    const auto order = [](const Ref& item) { return item->Order; };
    if (!std::ranges::is_sorted(ordered, {}, order)) std::ranges::stable_sort(ordered, {}, order);
    return ordered;
}

/// A picture field of an element and its name; the table has the order of the file.
struct PictureField {
    const char* name;
    std::string dbLayoutElement::*field;
};
inline constexpr PictureField PictureFields[] = {{"Normal", &dbLayoutElement::PicNormal},
                                                 {"On", &dbLayoutElement::PicOn},
                                                 {"Over", &dbLayoutElement::PicOver},
                                                 {"Down", &dbLayoutElement::PicDown},
                                                 {"Disabled", &dbLayoutElement::PicDisabled}};

/// Visits the references to pictures that aren't empty, in the order of the file. `visit` gets the text, a
/// function that tells in words where the reference is, and one that sets it by a Probation.
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
