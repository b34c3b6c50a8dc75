// SPDX-License-Identifier: MIT
#include "project/skin_files.h"

#include <algorithm>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "dialogs/ccommondialog.h"
#include "document/recovered.h"
#include "document/skin_packaging.h"
#include "platform/clock.h"
#include "platform/screen.h"
#include "project/own_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

/// The skin's folder in a form that is the same for each spelling: case, links and separators are resolved.
fs::path FolderOf(const dbSkin& skin) {
    std::error_code ignored;
    const fs::path folder = OnDisk(skin.SkinFolder());
    const fs::path plain = fs::weakly_canonical(folder, ignored);
    return ignored ? folder : plain;
}

std::string Listed(const std::vector<std::string>& lines) {
    constexpr std::size_t most = 15;
    std::string text;
    for (std::size_t i = 0; i < std::min(lines.size(), most); ++i) text += lines[i] + "\n";
    if (lines.size() > most) text += "and " + std::to_string(lines.size() - most) + " more\n";
    return text;
}

bool Agreed(const std::string& question) {
    return prompts().Message(question, SaveTitle, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

}  // namespace

SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder) {
    if (!ContainsSeparator(text)) return {WithSeparator(SkinsFolder(ownFolder)), std::string(text)};
    std::error_code error;
    const fs::path whole = fs::absolute(OnDisk(text), error);
    if (error)
        throw Failure(Failure::PathError, "PlaceOfSkin",
                      "\"" + std::string(text) + "\" can't be found: " + error.message());
    std::string folder = WithSeparator(ToText(whole.lexically_normal()));
    if (EqualText(GetFileName(folder), SettingsFileName))
        folder = GetParentFolderName(folder.substr(0, folder.size() - 1));
    folder.pop_back();
    return {GetParentFolderName(folder), GetFileName(folder)};
}

bool HoldsSkin(const SkinPlace& place) {
    return !NothingStandsAt(WithSeparator(place.basePath + place.skinName) + std::string(SettingsFileName));
}

Answer AskAboutChanges() {
    if (!objSkin || !objSkin->Dirty) return Answer::No;
    return prompts().Message("Save changes of current Skin before closing Ornavo?", SaveTitle, Icon::Question,
                             Buttons::YesNoCancel);
}

SkinFiles::SkinFiles(std::string ownFolder, std::string dataFolder)
    : ownFolder_(std::move(ownFolder)),
      dataFolder_(std::move(dataFolder)),
      lastParent_(SkinsFolder(ownFolder_)) {
    RememberText();
}

std::optional<SkinPlace> SkinFiles::AskForSkin() {
    const FileOptions options = {"Skin Settings|SkinSettings.xml", lastParent_, "Open Skin", ""};
    std::string file, title;
    if (!cCommonDialog().VBGetOpenFileName(file, title, options)) return std::nullopt;
    SkinPlace place = PlaceOfSkin(file, ownFolder_);
    lastParent_ = place.basePath;
    return place;
}

void SkinFiles::Replace(dbSkinRef skin) {
    KeepDropped();
    objSkin = std::move(skin);
    objCurrentLayout = std::make_shared<dbLayout>();
    acceptedLosses_.clear();
    RememberText();
}

void SkinFiles::Open(const SkinPlace& place, const std::function<void()>& beforeReplacing) {
    auto skin = std::make_shared<dbSkin>();
    skin->SetBasePath(place.basePath);
    skin->SkinName = place.skinName;
    const fs::path home = FolderOf(*skin);
    skin->LoadSkin();
    skin->SetupSkinPrefs();
    beforeReplacing();
    Replace(std::move(skin));
    home_ = home;
}

void SkinFiles::Create(std::string_view name, std::int32_t width, std::int32_t height) {
    auto skin = std::make_shared<dbSkin>();
    skin->SetBasePath(SkinsFolder(ownFolder_));
    skin->SkinName = name;
    skin->SkinWidth = width;
    skin->SkinHeight = height;
    for (const char* layout : {"Admin-Mode", "Kiosk-Mode"}) skin->AddNewLayout(layout)->AddDummyPoints();
    home_.clear();
    Replace(std::move(skin));
}

bool SkinFiles::MaySave(const dbSkin& skin, const fs::path& home, bool keepExisting) {
    const fs::path folder = FolderOf(skin);
    const bool isOther = folder != home && !NothingStandsAt(ToText(folder / SettingsFileName));
    if (isOther && !Agreed("There is a skin in\n" + ToText(folder) + "\nalready. Replace it?")) return false;
    if (IsDamaged(skin, home) &&
        !Agreed("The file of this skin is damaged:\n\n" + Listed(skin.Damage) +
                "\nA save writes what could be read; the damaged file is put into \"Recovered\" first. Save "
                "anyway?"))
        return false;
    const std::vector<std::string> losses = LossesOfSave(skin, keepExisting);
    if (losses.empty() || acceptedLosses_.contains(losses)) return true;
    if (!Agreed("The skin would lose these pictures:\n\n" + Listed(losses) + "\nSave anyway?")) return false;
    acceptedLosses_.insert(losses);
    return true;
}

bool SkinFiles::IsDamaged(const dbSkin& skin, const fs::path& home) {
    return !skin.Damage.empty() && FolderOf(skin) == home;
}

SkinFiles::Saved SkinFiles::SaveTo(dbSkin& skin, const fs::path& home, bool keepExisting) {
    if (!MaySave(skin, home, keepExisting)) return Saved::No;
    const std::string file = ToText(FolderOf(skin) / SettingsFileName);
    std::vector<std::string> uncopied;
    try {
        const WaitPointer wait;
        if (IsDamaged(skin, home)) KeepRecovered(dataFolder_, skin.SkinName, TimeStamp(), ReadFile(file));
        uncopied = skin.SaveSkin(keepExisting);
    } catch (const Failure& failure) {
        prompts().Message("The skin could not be saved to\n" + file + "\n\n" + failure.description(),
                          SaveTitle, Icon::Critical, Buttons::Ok);
        return Saved::Failed;
    }
    if (!uncopied.empty())
        prompts().Message("The skin is saved, but these pictures stay where they are:\n\n" + Listed(uncopied),
                          SaveTitle, Icon::Exclamation, Buttons::Ok);
    return Saved::Yes;
}

SkinFiles::Saved SkinFiles::Save() {
    const Saved saved = SaveTo(*objSkin, home_, false);
    if (saved == Saved::Yes) {
        home_ = FolderOf(*objSkin);
        RememberText();
    }
    return saved;
}

bool SkinFiles::SaveAs(std::string_view name) {
    const std::string before = std::exchange(objSkin->SkinName, std::string(name));
    const bool saved = Save() == Saved::Yes;
    if (!saved) objSkin->SkinName = before;
    return saved;
}

SkinFiles::Saved SkinFiles::SaveInto(dbSkin& skin, const fs::path& home) {
    std::error_code ignored;
    return SaveTo(skin, fs::weakly_canonical(home, ignored), true);
}

void SkinFiles::RememberText() {
    knownText_ = objSkin->FileBytes();
}

void SkinFiles::KeepDropped() {
    if (!objSkin) return;
    const std::string text = objSkin->FileBytes();
    if (text == knownText_) return;
    if (!objSkin->Dirty && WithoutDrawnParts(text) == WithoutDrawnParts(knownText_)) return;
    if (Attempt([&] { KeepRecovered(dataFolder_, objSkin->SkinName, TimeStamp(), text); })) knownText_ = text;
}

}  // namespace ornavo
