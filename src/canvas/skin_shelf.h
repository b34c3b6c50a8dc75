// SPDX-License-Identifier: MIT
// The newest skins of a folder, looked for a few at a time, so that nobody waits for a full one.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ornavo {

class SkinShelf {
public:
    static constexpr std::size_t Places = 24;
    static constexpr int FoldersPerStep = 32;

    struct Skin {
        std::filesystem::path folder;
        std::filesystem::file_time_type saved;  // its settings file
    };

    /// A folder that is not there has no skins.
    explicit SkinShelf(const std::filesystem::path& skins);

    /// Looks into the next few folders; false when all have been seen. Never fails.
    bool Step();
    /// Of those seen so far the last saved ones, the newest first.
    const std::vector<Skin>& Newest() const { return newest_; }

private:
    void Look(const std::filesystem::path& folder);

    std::filesystem::directory_iterator next_;
    std::vector<Skin> newest_;
};

}  // namespace ornavo
