// SPDX-License-Identifier: MIT
#include "project/layout_copy.h"

#include "base/failure.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/skin_packaging.h"
#include "platform/prompts.h"
#include "project/layout_steps.h"

namespace ornavo {
namespace {

constexpr std::string_view ClonedMark = " (cloned";

bool Exists(const dbSkin& skin, std::string_view name) {
    return skin.dbLayouts->Find(dbSkin::GetLayoutKey(name)) != nullptr;
}

/// "" after Cancel.
std::string AskForName(std::string_view key) {
    const std::string proposal = ReplaceAll(std::string(key), "_", " ");
    return StorableLayoutName(
        prompts().Input("Enter a name for new Layout", "New Layout", proposal).value_or(""));
}

/// Adds a layout with this name and copies of the source's elements and points.
dbLayoutRef AddCopy(dbSkin& skin, std::string_view name, const dbLayout& source) {
    dbLayoutRef copy = skin.AddNewLayout(name);
    copy->dbLayoutElements = std::make_shared<dbLayoutElements>();
    copy->dbPoints = std::make_shared<dbPoints>();
    for (const dbLayoutElementRef& element : *source.dbLayoutElements) {
        auto own = std::make_shared<dbLayoutElement>(*element);
        if (own->Font) own->Font = std::make_shared<Font>(*own->Font);
        copy->dbLayoutElements->AddObject(std::move(own));
    }
    for (const dbPointRef& point : *source.dbPoints)
        Attempt([&] { copy->dbPoints->AddObject(std::make_shared<dbPoint>(*point)); });
    return copy;
}

/// Replaces the pictures' names by their full paths, because another skin would look for a bare name in its
/// own folder.
void NamePlaces(const dbLayout& layout) {
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements)
        for (const PictureField& picture : PictureFields) {
            const std::filesystem::path place = FindSkinPicture((*element).*picture.field);
            if (!place.empty()) (*element).*picture.field = ToText(place);
        }
}

constexpr const char* InsertTitle = "Insert Layout to Skin";

/// Loads the skin; on a failure shows a message and returns false.
bool Read(dbSkin& skin, const char* title) {
    try {
        if (skin.LoadSkin()) return true;
        throw Failure(Failure::FileNotFound, title, skin.SkinFile() + " not found!");
    } catch (const Failure& failure) {
        prompts().Message(failure.description(), title, Icon::Critical, Buttons::Ok);
        return false;
    }
}

void ReadAgain(SkinFiles& files, const char* title) {
    if (!Read(*objSkin, title)) return;
    objSkin->SetupSkinPrefs();
    files.RememberText();
}

}  // namespace

std::string GetFreeClonedText(const dbSkin& skin, std::string name) {
    if (name.find(ClonedMark) == std::string::npos) {
        if (!Exists(skin, name)) return name;
        name += std::string(ClonedMark) + ")";
    }
    const std::string start = name.substr(0, name.find(ClonedMark)) + std::string(ClonedMark);
    for (int number = 2;; ++number) {
        std::string candidate = start + std::to_string(number) + ")";
        if (!Exists(skin, candidate)) return candidate;
    }
}

std::string CloneLayout(std::string_view key, SkinFiles& files) {
    const dbLayoutRef source = objSkin->dbLayouts->Item(key);
    const std::string answer = AskForName(key);
    if (answer.empty()) return "";
    const std::string copyKey = AddCopy(*objSkin, GetFreeClonedText(*objSkin, answer), *source)->Key;
    if (files.Save() != SkinFiles::Saved::Yes) {
        objSkin->dbLayouts->Remove(copyKey);
        return "";
    }
    ReadAgain(files, "Clone Layout");
    return copyKey;
}

bool InsertLayoutToSkin(std::string_view key, SkinFiles& files) {
    const dbLayoutRef source = objSkin->dbLayouts->Item(key);
    const std::string answer = AskForName(key);
    if (answer.empty()) return false;
    const std::optional<SkinPlace> place = files.AskForSkin();
    if (!place) return false;
    dbSkin target;
    target.SetBasePath(place->basePath);
    target.SkinName = place->skinName;
    const std::filesystem::path home = OnDisk(target.SkinFolder());
    const bool same = EqualText(target.SkinName, objSkin->SkinName);
    if (same && files.Save() != SkinFiles::Saved::Yes) return false;
    if (!Read(target, InsertTitle)) return same;  // a file that cannot be read must not be replaced
    const dbLayoutRef copy = AddCopy(target, GetFreeClonedText(target, answer), *source);
    if (!same) NamePlaces(*copy);
    files.SaveInto(target, home);
    if (same) ReadAgain(files, InsertTitle);
    return same;
}

}  // namespace ornavo
