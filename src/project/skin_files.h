// SPDX-License-Identifier: MIT
// Opening, creating and saving a skin, the questions that a save asks, and what becomes of a skin that is
// dropped with changes.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "document/current_skin.h"
#include "platform/prompts.h"

namespace ornavo {

/// Where a skin lies: BasePath + SkinName is its folder.
struct SkinPlace {
    std::string basePath;  // ends in a separator
    std::string skinName;
};

/// A text with a separator, or one that names a folder or file here by a path, is a skin's folder or its
/// settings file; any other text is the name of a folder under `ownFolder` + "Skins". Failure 75 for a path
/// from a working folder that is gone.
SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder);

/// Whether there is a settings file, whatever the case of its name and also one that can't be read.
bool HoldsSkin(const SkinPlace& place);

inline constexpr const char* SaveTitle = "Save current Skin";

/// Whether changes of the current skin are to be saved before the program ends; No where there are none.
Answer AskAboutChanges();

class SkinFiles {
public:
    /// `ownFolder` holds the folder "Skins", `dataFolder` the folder "Recovered".
    SkinFiles(std::string ownFolder, std::string dataFolder);

    /// The settings file of a skin by the open dialog, which starts where the last one was found.
    std::optional<SkinPlace> AskForSkin();
    /// Replaces the current skin by the one at the place, and the current layout by an empty one. A skin
    /// without a file is opened empty. Failure where its file can't be read; then all stays as it was.
    /// `beforeReplacing` runs when the file has been read and the old skin is still the current one.
    void Open(
        const SkinPlace& place, const std::function<void()>& beforeReplacing = [] {});
    /// Replaces the current skin by a new one of that size in pixels, which lies under "Skins" once it is
    /// saved. It has the layouts "Admin-Mode" and "Kiosk-Mode".
    void Create(std::string_view name, std::int32_t width, std::int32_t height);

    enum class Saved { Yes, No, Failed };
    /// Saves the current skin. It asks before it writes into a folder that is not the skin's own and has a
    /// settings file, before it replaces a damaged file, which is put into "Recovered" then, and before
    /// pictures are lost; about the same ones only once. A failure is told with path and reason; the model is
    /// then as it was.
    Saved Save();
    /// The current skin under that name; false if it was not saved and has its old name.
    bool SaveAs(std::string_view name);
    /// As Save, for any skin that was read from `home`; it keeps pictures that are there.
    Saved SaveInto(dbSkin& skin, const std::filesystem::path& home);
    /// The current skin's text, as it stands, needs no keeping: it has just been read.
    void RememberText();
    /// Puts the text of the current skin into "Recovered" when it differs from the one that was read or saved
    /// last. What a composition writes by itself is no difference. Never fails.
    void KeepDropped();

private:
    void Replace(dbSkinRef skin);
    Saved SaveTo(dbSkin& skin, const std::filesystem::path& home, bool keepExisting);
    /// Asks about what a save would replace or lose.
    bool MaySave(const dbSkin& skin, const std::filesystem::path& home, bool keepExisting);
    static bool IsDamaged(const dbSkin& skin, const std::filesystem::path& home);  // the file to replace

    std::string ownFolder_;
    std::string dataFolder_;
    std::string lastParent_;      // of the skin that was last chosen by the dialog
    std::filesystem::path home_;  // folder of the current skin's file; empty for one never saved
    std::string knownText_;       // of the current skin, when it was read or saved last
    std::set<std::vector<std::string>> acceptedLosses_;  // that the user agreed to while this skin is open
};

}  // namespace ornavo
