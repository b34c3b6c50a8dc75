// SPDX-License-Identifier: MIT
// The program's own folder, and the sample skins that a user gets at first use.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

/// The folder of the executable when a folder "Skins" lies beside it and can be written (a portable copy),
/// otherwise the user's data folder.
std::filesystem::path OwnFolder(const std::filesystem::path& executableFolder,
                                const std::filesystem::path& dataFolder);

/// Of the user's skins, in the own folder; without a separator at its end.
std::string SkinsFolder(std::string_view ownFolder);

/// Where the sample skins are installed beside an executable: in its share folder, or in the source tree of a
/// build. Empty if they are nowhere.
std::filesystem::path SampleFolder(const std::filesystem::path& executableFolder);

/// Copies the sample skins to "Skins" under the own folder when there is none yet; whole or not at all.
/// Failure 75 if it can't.
void BringSamples(const std::filesystem::path& samples, const std::filesystem::path& ownFolder);

}  // namespace ornavo
