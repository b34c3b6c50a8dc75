// SPDX-License-Identifier: MIT
#include "canvas/skin_shelf.h"

#include <algorithm>

#include "base/lookup.h"
#include "base/paths.h"
#include "document/dbskin.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

fs::directory_iterator Entries(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    return error ? fs::directory_iterator() : entries;
}

}  // namespace

SkinShelf::SkinShelf(const fs::path& skins) : next_(Entries(skins)) {}

bool SkinShelf::Step() {
    std::error_code error;
    for (int i = 0; i < FoldersPerStep && next_ != fs::directory_iterator(); ++i) {
        Look(next_->path());
        next_.increment(error);
        if (error) next_ = {};
    }
    return next_ != fs::directory_iterator();
}

void SkinShelf::Look(const fs::path& folder) {
    const std::string settings = WithSeparator(ToText(folder)) + std::string(SettingsFileName);
    if (!FileExists(settings)) return;
    std::error_code ignored;
    const fs::file_time_type saved = fs::last_write_time(OnDisk(settings), ignored);
    const auto place = std::ranges::find_if(newest_, [&](const Skin& skin) {
        return skin.saved < saved || (skin.saved == saved && skin.folder > folder);
    });
    newest_.insert(place, {folder, saved});
    if (newest_.size() > Places) newest_.pop_back();
}

}  // namespace ornavo
