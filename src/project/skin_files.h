// SPDX-License-Identifier: MIT
// Opening, creating and saving a skin: the questions before a save, and keeping the text of a skin that is
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

/// The location of a skin: BasePath + SkinName is its folder.
struct SkinPlace {
    std::string basePath;  // ends in a separator
    std::string skinName;
};

/// Interprets a text as a skin: with a separator it is the path of a skin's folder or of its settings file;
/// otherwise it is the name of a folder in `ownFolder` + "Skins". Failure 75 for a relative path while the
/// working folder does not exist.
SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder);

/// Whether the place has a settings file, its name in any case; true also if the file cannot be read.
bool HoldsSkin(const SkinPlace& place);

inline constexpr const char* SaveTitle = "Save current Skin";

/// Asks whether to save the current skin's changes before the program ends; No without asking if there are
/// none.
Answer AskAboutChanges();

/// The files of the current skin.
class SkinFiles {
public:
    /// `ownFolder` has the folder "Skins", `dataFolder` the folder "Recovered".
    SkinFiles(std::string ownFolder, std::string dataFolder);

    /// Asks for a skin's settings file; the dialog starts in the folder of the last choice.
    std::optional<SkinPlace> AskForSkin();
    /// Replaces the current skin by the one at the place and the current layout by an empty one. A skin
    /// without a file is opened empty. Failure, with nothing changed, if the file cannot be read.
    /// `beforeReplacing` runs after the file has been read, while the old skin is still the current one.
    void Open(
        const SkinPlace& place, const std::function<void()>& beforeReplacing = [] {});
    /// Replaces the current skin by a new one of this size in pixels with the layouts "Admin-Mode" and
    /// "Kiosk-Mode". Saving will put it into "Skins".
    void Create(std::string_view name, std::int32_t width, std::int32_t height);

    enum class Saved { Yes, No, Failed };
    /// Saves the current skin. Asks before replacing another skin's file, before replacing a damaged file
    /// (which is then copied to "Recovered") and before pictures are lost, but only once about the same
    /// losses. On a failure it shows path and reason and leaves the model as it was.
    Saved Save();
    /// Saves the current skin under this name; if it returns false, nothing was saved and the name is the old
    /// one.
    bool SaveAs(std::string_view name);
    /// As Save, for any skin that was read from the folder `home`; existing pictures are not replaced.
    Saved SaveInto(dbSkin& skin, const std::filesystem::path& home);
    /// Notes the current skin's text as one that need not be kept, because it has just been read.
    void RememberText();
    /// Writes the current skin's text to "Recovered" if the user has changed it since it was last read or
    /// saved. What a composition itself writes does not count. Never fails.
    void KeepDropped();

private:
    void Replace(dbSkinRef skin);
    Saved SaveTo(dbSkin& skin, const std::filesystem::path& home, bool keepExisting);
    /// Asks about everything that the save would replace or lose.
    bool MaySave(const dbSkin& skin, const std::filesystem::path& home, bool keepExisting);
    /// Whether the save would replace a damaged file.
    static bool IsDamaged(const dbSkin& skin, const std::filesystem::path& home);

    std::string ownFolder_;
    std::string dataFolder_;
    std::string lastParent_;      // folder of the skin that was last chosen in the dialog
    std::filesystem::path home_;  // folder of the current skin's file; empty if it was never saved
    std::string knownText_;       // the current skin's text when it was last read or saved
    std::set<std::vector<std::string>> acceptedLosses_;  // accepted by the user since the skin was opened
};

}  // namespace ornavo
