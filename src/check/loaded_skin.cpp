// SPDX-License-Identifier: MIT
#include "check/loaded_skin.h"

#include "base/files.h"
#include "base/text.h"
#include "document/skin_copy.h"
#include "document/skin_packaging.h"

namespace ornavo {
namespace {

class LineList : public LoadObserver {
public:
    explicit LineList(std::vector<LineReport>& lines) : lines_(lines) {}
    void Tell(const LineReport& report) override { lines_.push_back(report); }

private:
    std::vector<LineReport>& lines_;
};

dbSkinRef SkinAt(std::string_view basePath, const std::string& name) {
    auto skin = std::make_shared<dbSkin>();
    skin->SetBasePath(basePath);
    skin->SkinName = name;
    return skin;
}

}  // namespace

const void* AddressOf(const LoadedObject& object) {
    return std::visit(
        [](const auto& held) -> const void* {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>)
                return nullptr;
            else if constexpr (std::is_pointer_v<Held>)
                return held;
            else
                return held.get();
        },
        object);
}

LoadedSkin::LoadedSkin(std::string_view basePath, const std::string& name)
    : LoadedSkin(basePath, name, ReadFile(SkinAt(basePath, name)->SkinFile())) {}

LoadedSkin::LoadedSkin(std::string_view basePath, const std::string& name, std::string bytes)
    : bytes_(std::move(bytes)), skin_(SkinAt(basePath, name)) {
    folder_ = skin_->SkinFolder();
    LineList observer(lines_);
    skin_->LoadBytes(bytes_, &observer);
    newPreferences_ = -skin_->dbSkinPrefs->Count();
    skin_->SetupSkinPrefs();
    newPreferences_ += skin_->dbSkinPrefs->Count();
    after_ = SkinAt(basePath, skin_->SkinName);
    after_->LoadBytes(BytesOfSave(*skin_, false));
    Pair(*after_);
}

const LoadedSkin::Part* LoadedSkin::Find(const LoadedObject& object) const {
    const auto part = parts_.find(AddressOf(object));
    return part == parts_.end() ? nullptr : &part->second;
}

int LoadedSkin::LineOf(const void* object, std::string_view field) const {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line)
        if (line->fate == LineFate::Assigned && AddressOf(line->object) == object &&
            EqualText(line->tag, field))
            return line->number;
    return 0;
}

void LoadedSkin::Enter(const void* before, FindingPlace place, LoadedObject after) {
    if (before) parts_.emplace(before, Part{std::move(place), std::move(after)});
}

/// Names are the same on both sides; a corner has no name but its order.
void LoadedSkin::Pair(const dbSkin& after) {
    Enter(skin_.get(), {}, after_.get());
    Enter(skin_->dbLayouts.get(), {}, after.dbLayouts);
    for (const dbSkinPrefRef& pref : *skin_->dbSkinPrefs) {
        const dbSkinPrefRef same = after.dbSkinPrefs->Find(pref->Key);
        Enter(pref.get(), {"", pref->Key, ""}, same ? LoadedObject(same) : LoadedObject());
        Enter(pref->Font.get(), {"", pref->Key, "Font"}, same ? LoadedObject(same->Font) : LoadedObject());
    }
    for (const dbLayoutRef& layout : *skin_->dbLayouts)
        PairLayout(*layout, after.dbLayouts->Find(layout->Key));
}

void LoadedSkin::PairLayout(const dbLayout& before, const dbLayoutRef& after) {
    static const dbLayoutRef nothing = std::make_shared<dbLayout>();
    const dbLayout& same = after ? *after : *nothing;
    Enter(&before, {before.Key, "", ""}, after ? LoadedObject(after) : LoadedObject());
    Enter(before.dbPoints.get(), {before.Key, "", ""}, same.dbPoints);
    Enter(before.dbLayoutElements.get(), {before.Key, "", ""}, same.dbLayoutElements);
    for (const dbPointRef& point : *before.dbPoints) {
        const bool isFirst = before.dbPoints->GetFromOrder(point->Order) == point;
        const dbPointRef found = isFirst ? same.dbPoints->GetFromOrder(point->Order) : nullptr;
        Enter(point.get(), {before.Key, "corner " + std::to_string(point->Order), ""},
              found ? LoadedObject(found) : LoadedObject());
    }
    for (const dbLayoutElementRef& element : *before.dbLayoutElements) {
        const dbLayoutElementRef found = same.dbLayoutElements->Find(element->Key);
        Enter(element.get(), {before.Key, element->Key, ""}, found ? LoadedObject(found) : LoadedObject());
        Enter(element->Font.get(), {before.Key, element->Key, "Font"},
              found ? LoadedObject(found->Font) : LoadedObject());
    }
}

}  // namespace ornavo
