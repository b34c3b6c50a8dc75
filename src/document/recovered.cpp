// SPDX-License-Identifier: MIT
#include "document/recovered.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t KeptTexts = 10;
constexpr std::size_t StampLength = 23;  // of "2026-01-31 23-59-59-999"

std::string StampOf(const fs::path& file) {
    const std::string name = ToText(file.stem());
    return name.size() < StampLength ? name : name.substr(name.size() - StampLength);
}

void KeepLast(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        if (at->path().extension() == ".xml") files.push_back(at->path());
    std::sort(files.begin(), files.end(),
              [](const fs::path& one, const fs::path& two) { return StampOf(one) > StampOf(two); });
    for (std::size_t i = KeptTexts; i < files.size(); ++i) Attempt([&] { fileLayer().Remove(files[i]); });
}

}  // namespace

void KeepRecovered(std::string_view dataFolder, std::string_view skinName, std::string_view stamp,
                   std::string_view bytes) {
    const std::string folder = WithSeparator(WithSeparator(dataFolder) + "Recovered");
    MakePath(folder);
    RemoveLeftScratchFiles(OnDisk(folder));
    ReplaceFile(OnDisk(folder) / CleanFileName(skinName).append(" ").append(stamp).append(".xml"), bytes);
    KeepLast(OnDisk(folder));
}

std::string WithoutDrawnParts(std::string_view text) {
    std::string rest;
    bool inFont = false, isKeyColour = false;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const std::string_view tag = line.substr(std::min(line.find_first_not_of('\t'), line.size()));
        if (tag.starts_with("<Font>")) inFont = true;
        if (tag.starts_with("<Key>"))
            isKeyColour = tag.find("_TransparentColor</Key>") != std::string_view::npos;
        const bool isDrawn = inFont || tag.starts_with("<TransparentColor>") ||
                             tag.starts_with("<CapScrollSpeed>") ||
                             (isKeyColour && tag.starts_with("<Value>"));
        if (!isDrawn) rest.append(line).append("\n");
        if (tag.starts_with("</Font>")) inFont = false;
    }
    return rest;
}

}  // namespace ornavo
