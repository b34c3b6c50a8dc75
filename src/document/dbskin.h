// SPDX-License-Identifier: MIT
// The skin: its name and size, its preferences and its layouts.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/dblayouts.h"
#include "document/dbskinprefs.h"

namespace ornavo {

inline constexpr std::string_view SettingsFileName = "SkinSettings.xml";

class dbSkin {
public:
    dbSkin();  // the whole catalogue with its defaults, no layout

    bool Dirty = false;
    std::vector<std::string> Damage;  // what its file had lost when it was read, in words; none after a save
    std::string OldSkinName;
    std::int32_t SkinHeight = 0, SkinWidth = 0;  // pixels
    std::string SkinName;
    std::shared_ptr<ornavo::dbSkinPrefs> dbSkinPrefs;  // never null
    std::shared_ptr<ornavo::dbLayouts> dbLayouts;      // never null

    const std::string& BasePath() const { return basePath_; }
    void SetBasePath(std::string_view folder);  // gets a separator at its end

    std::string SkinFolder() const;  // BasePath + SkinName + separator
    std::string SkinFile() const;    // SkinFolder + "SkinSettings.xml"

    /// Adds each preference of the catalogue that is missing, at the end.
    void SetupSkinPrefs();
    dbLayoutRef AddNewLayout(std::string_view name);
    static std::string GetLayoutKey(std::string_view name);

    /// Fills the skin from its file, by BasePath and SkinName. A file that is not there changes nothing but
    /// OldSkinName; a line that says nothing is skipped. SkinName is afterwards a plain folder name. Failure
    /// where a file is that can't be read whole; the skin is then as it was. True if there is a file.
    bool LoadSkin();
    /// Gathers the pictures into the skin's folder and writes the file, whole or not at all; a link in its
    /// place is replaced itself. Failure when it can't; the model is then as it was. The pictures that could
    /// not be copied, a line with the reason each: they keep their full paths.
    std::vector<std::string> SaveSkin(bool keepExisting);
    /// The bytes of the settings file as the skin stands now, pictures where they are.
    std::string FileBytes() const;

private:
    std::string basePath_;
};
using dbSkinRef = std::shared_ptr<dbSkin>;

}  // namespace ornavo
