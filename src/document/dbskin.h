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

class LoadObserver;

/// A skin, as it is edited, loaded and saved.
class dbSkin {
public:
    dbSkin();  // has every preference of the catalogue with its default, and no layout

    bool Dirty = false;
    std::vector<std::string> Damage;  // what was lost when the file was read, in words; empty after a save
    std::string OldSkinName;          // when it was loaded or last saved; "" for a new skin
    std::int32_t SkinHeight = 0, SkinWidth = 0;  // pixels
    std::string SkinName;
    std::shared_ptr<ornavo::dbSkinPrefs> dbSkinPrefs;  // never null
    std::shared_ptr<ornavo::dbLayouts> dbLayouts;      // never null

    const std::string& BasePath() const { return basePath_; }
    void SetBasePath(std::string_view folder);  // ends in a separator afterwards

    std::string SkinFolder() const;  // BasePath + SkinName + separator
    std::string SkinFile() const;    // SkinFolder + "SkinSettings.xml"

    /// Appends each preference of the catalogue that is missing.
    void SetupSkinPrefs();
    dbLayoutRef AddNewLayout(std::string_view name);
    static std::string GetLayoutKey(std::string_view name);  // "L" before a number; blanks become "_"

    /// Reads the skin's file, found by BasePath and SkinName. Returns whether there is one; without it
    /// nothing but OldSkinName and Damage changes. A line without meaning is skipped. SkinName is a plain
    /// folder name afterwards. Throws a Failure, and changes nothing, if the file cannot be read whole.
    bool LoadSkin();
    /// Reads these bytes as the skin's file. The observer, unless it is null, is told of each line.
    void LoadBytes(std::string_view bytes, LoadObserver* observer = nullptr);
    /// Copies the pictures into the skin's folder and writes the file, whole or not at all; a link in the
    /// file's place is itself replaced. Returns a line with the reason for each picture that could not be
    /// copied; such a picture keeps its full path. Throws a Failure, and leaves the model as it was, if the
    /// file cannot be written.
    std::vector<std::string> SaveSkin(bool keepExisting);
    /// The bytes of the settings file for the present skin, with the pictures' present paths.
    std::string FileBytes() const;

private:
    std::string basePath_;
};
using dbSkinRef = std::shared_ptr<dbSkin>;

}  // namespace ornavo
