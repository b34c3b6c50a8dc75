// SPDX-License-Identifier: MIT
// Finds the newest skins of a folder, a few subfolders at a time, so that a large folder blocks nothing.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ornavo {

/// A search for the newest skins of a folder.
class SkinShelf {
public:
    static constexpr std::size_t Places = 24;
    static constexpr int FoldersPerStep = 32;

    /// A skin that was found.
    struct Skin {
        std::filesystem::path folder;
        std::filesystem::file_time_type saved;  // time of its settings file
    };

    /// A missing folder counts as empty.
    explicit SkinShelf(const std::filesystem::path& skins);

    /// Looks into the next FoldersPerStep folders. False when it has seen all. Never fails.
    bool Step();
    /// The most recently saved of the skins seen so far, the newest first; at most `Places`.
    const std::vector<Skin>& Newest() const { return newest_; }

private:
    void Look(const std::filesystem::path& folder);

    std::filesystem::directory_iterator next_;
    std::vector<Skin> newest_;
};

}  // namespace ornavo
