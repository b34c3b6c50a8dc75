// SPDX-License-Identifier: MIT
#include "project/skin_files.h"

#include <algorithm>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "dialogs/ccommondialog.h"
#include "platform/clock.h"
#include "platform/screen.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t KeptSkins = 10;
constexpr std::size_t StampLength = 23;  // of "2026-01-31 23-59-59-999"

/// One form for each folder, whatever its case, links and separators.
fs::path FolderOf(const dbSkin& skin) {
    std::error_code ignored;
    const fs::path folder = OnDisk(skin.SkinFolder());
    const fs::path plain = fs::weakly_canonical(folder, ignored);
    return ignored ? folder : plain;
}

std::string StampOf(const fs::path& file) {
    const std::string name = file.stem().string();
    return name.size() < StampLength ? name : name.substr(name.size() - StampLength);
}

void KeepLast(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored))
        if (entry.path().extension() == ".xml") files.push_back(entry.path());
    std::sort(files.begin(), files.end(),
              [](const fs::path& one, const fs::path& two) { return StampOf(one) > StampOf(two); });
    for (std::size_t i = KeptSkins; i < files.size(); ++i) Attempt([&] { fileLayer().Remove(files[i]); });
}

}  // namespace

SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder) {
    if (!ContainsSeparator(text))
        return {WithSeparator(WithSeparator(ownFolder) + "Skins"), std::string(text)};
    std::string folder = WithSeparator(fs::absolute(OnDisk(text)).lexically_normal().string());
    if (EqualText(GetFileName(folder), SettingsFileName))
        folder = GetParentFolderName(folder.substr(0, folder.size() - 1));
    folder.pop_back();
    return {GetParentFolderName(folder), GetFileName(folder)};
}

SkinFiles::SkinFiles(std::string ownFolder, std::string dataFolder)
    : ownFolder_(std::move(ownFolder)),
      dataFolder_(std::move(dataFolder)),
      lastParent_(WithSeparator(ownFolder_) + "Skins") {}

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
}

void SkinFiles::Open(const SkinPlace& place, const std::function<void()>& beforeIt) {
    auto skin = std::make_shared<dbSkin>();
    skin->SetBasePath(place.basePath);
    skin->SkinName = place.skinName;
    const fs::path home = FolderOf(*skin);
    skin->LoadSkin();
    skin->SetupSkinPrefs();
    beforeIt();
    Replace(std::move(skin));
    home_ = home;
}

void SkinFiles::Create(std::string_view name, std::int32_t width, std::int32_t height) {
    auto skin = std::make_shared<dbSkin>();
    skin->SetBasePath(WithSeparator(ownFolder_) + "Skins");
    skin->SkinName = name;
    skin->SkinWidth = width;
    skin->SkinHeight = height;
    for (const char* layout : {"Admin-Mode", "Kiosk-Mode"}) skin->AddNewLayout(layout)->AddDummyPoints();
    home_.clear();
    Replace(std::move(skin));
}

SkinFiles::Saved SkinFiles::SaveTo(dbSkin& skin, const fs::path& home, bool keepExisting) const {
    const fs::path folder = FolderOf(skin);
    const std::string file = ToText(folder / SettingsFileName);
    if (folder != home && !NothingStandsAt(file)) {
        const std::string question = "There is a skin in\n" + ToText(folder) + "\nalready. Replace it?";
        if (prompts().Message(question, SaveTitle, Icon::Question, Buttons::YesNo) != Answer::Yes)
            return Saved::No;
    }
    try {
        const WaitPointer wait;
        skin.SaveSkin(keepExisting);
        return Saved::Yes;
    } catch (const Failure& failure) {
        prompts().Message("The skin could not be saved to\n" + file + "\n\n" + failure.description(),
                          SaveTitle, Icon::Critical, Buttons::Ok);
        return Saved::Failed;
    }
}

SkinFiles::Saved SkinFiles::Save() {
    const Saved saved = SaveTo(*objSkin, home_, false);
    if (saved == Saved::Yes) home_ = FolderOf(*objSkin);
    return saved;
}

SkinFiles::Saved SkinFiles::SaveInto(dbSkin& skin, const fs::path& home) const {
    std::error_code ignored;
    return SaveTo(skin, fs::weakly_canonical(home, ignored), true);
}

void SkinFiles::KeepDropped() const {
    if (!objSkin || !objSkin->Dirty) return;
    Attempt([&] {
        const std::string folder = WithSeparator(WithSeparator(dataFolder_) + "Recovered");
        MakePath(folder);
        const std::string stamp = clock().Now().toString("yyyy-MM-dd HH-mm-ss-zzz").toStdString();
        ReplaceFile(OnDisk(folder) / (CleanFileName(objSkin->SkinName) + ' ' + stamp + ".xml"),
                    objSkin->FileBytes());
        KeepLast(OnDisk(folder));
    });
}

}  // namespace ornavo
