// SPDX-License-Identifier: MIT
#include "document/skin_preview.h"

#include "base/failure.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/dbskin.h"
#include "document/skin_lines.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t MostBytes = 4 << 20;  // of a settings file; a larger one is not read
constexpr const char* PreviewNames[] = {"preview.png", "preview.jpg", "preview.jpeg", "preview.bmp",
                                        "preview.gif"};

std::string NameInFile(const fs::path& settings) {
    std::string name;
    std::error_code error;
    const std::uintmax_t size = fs::file_size(settings, error);
    if (!error && size <= MostBytes) Attempt([&] { name = PreviewName(ReadFile(ToText(settings))); });
    return name;
}

}  // namespace

std::string PreviewName(std::string_view bytes) {
    std::string_view key, value;
    while (!bytes.empty()) {
        const std::size_t stop = std::min(bytes.find('\n'), bytes.size() - 1);
        const TagLine line = GetTag(TrimTag(bytes.substr(0, stop + 1)));
        bytes.remove_prefix(stop + 1);
        if (line.tag == "SkinPref") key = value = {};
        if (line.tag == "Key" && line.value) key = *line.value;
        if (line.tag == "Value" && line.value) value = *line.value;
        if (line.tag == "/SkinPref" && EqualText(key, "SP_PicPreview")) return FromFileBytes(value);
        if (line.tag == "/SkinPrefs") break;
    }
    return {};
}

std::vector<fs::path> PreviewFiles(const fs::path& folder) {
    const std::string inside = WithSeparator(ToText(folder));
    std::vector<std::string> names;
    if (const std::string name = NameInFile(OnDisk(inside + std::string(SettingsFileName))); !name.empty()) {
        if (ContainsSeparator(name)) names.push_back(name);
        names.push_back(inside + GetFileName(name));
    }
    for (const char* name : PreviewNames) names.push_back(inside + name);
    std::vector<fs::path> files;
    for (const std::string& name : names)
        if (FileExists(name)) files.push_back(OnDisk(name));
    return files;
}

}  // namespace ornavo
