// SPDX-License-Identifier: MIT
#include "document/skin_packaging.h"

#include <filesystem>
#include <system_error>

#include "base/failure.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "document/skin_lines.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

/// Whether the line of a file can name it: a character without a byte, or a line's end, would break it.
bool CanBeNamed(std::string_view name) {
    return FitsFile(name) && name.find_first_of("\r\n") == std::string_view::npos;
}

/// The name with a number behind its base from 2 on, every character that can't be named replaced.
std::string Substitute(std::string_view name, int number) {
    std::string plain = FromFileBytes(ToFileBytes(name));
    for (const std::string_view sign : {"?", "\r", "\n"}) plain = ReplaceAll(std::move(plain), sign, "_");
    if (number == 1) return plain;
    const std::size_t point = plain.rfind('.');
    plain.insert(point == std::string::npos ? plain.size() : point,
                 std::string("-").append(std::to_string(number)));
    return plain;
}

bool SameBytes(const fs::path& one, const fs::path& two) {
    std::error_code error;
    if (fs::file_size(one, error) != fs::file_size(two, error) || error) return false;
    bool same = false;
    Attempt([&] { same = fileLayer().Read(one) == fileLayer().Read(two); });
    return same;
}

/// Something stands there, if only a link that leads nowhere.
bool IsTaken(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

/// The name under which the picture is stored: its own, or a substitute that no other picture has. One that
/// the file would give back as a number is none.
std::string StoredName(const std::string& folder, const std::string& name, const fs::path& source) {
    if (CanBeNamed(name) && ReadBack(name) == name) return name;
    for (int number = 1;; ++number) {
        std::string candidate = Substitute(name, number);
        if (ReadBack(candidate) != candidate) candidate.insert(0, "_");
        const fs::path target = OnDisk(folder + candidate);
        if (!IsTaken(target) || SameBytes(target, source)) return candidate;
    }
}

/// Where the path leads; otherwise the file of that name in the folder that the saved skin had before, and
/// only then in those of the current skin.
fs::path FindSource(const dbSkin& skin, std::string_view path) {
    std::vector<std::string> places = {GetSkinPicturePath(path)};
    if (!skin.OldSkinName.empty())
        places.push_back(WithSeparator(skin.BasePath() + skin.OldSkinName) + GetFileName(path));
    for (const std::string& place : places)
        if (FileExists(place)) return OnDisk(place);
    return FindSkinPicture(path);
}

}  // namespace

std::string StorableSkinName(const dbSkin& skin) {
    if (CanBeNamed(skin.SkinName)) return skin.SkinName;
    for (int number = 1;; ++number) {
        std::string candidate = Substitute(skin.SkinName, number);
        const std::string folder = WithSeparator(skin.BasePath() + candidate);
        if (!FileExists(folder + std::string(SettingsFileName))) return candidate;
    }
}

std::string SaveSkinPicture(const dbSkin& skin, std::string_view path, bool keepExisting) {
    const std::string given(path);
    if (TrimBlanks(path).empty()) return "";
    const fs::path source = FindSource(skin, path);
    if (source.empty()) return "";

    const std::string folder = skin.SkinFolder();
    const std::string name = StoredName(folder, GetFileName(path), source);
    if (EqualText(name, SettingsFileName)) return given;
    const fs::path target = OnDisk(folder + name);
    std::error_code ignored;
    if (fs::equivalent(source, target, ignored)) return name;
    if (keepExisting && FileExists(folder + name)) return name;
    if (Attempt([&] { CopyFileWhole(source, target); })) return name;
    // A bare name found in the folder that the skin had before would lead nowhere from now on.
    return ContainsSeparator(path) && OnDisk(path) == source ? given : ToText(source);
}

}  // namespace ornavo
