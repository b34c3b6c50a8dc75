// SPDX-License-Identifier: MIT
// The program's own folder, and the sample skins that a user gets at first use.
#pragma once

#include <filesystem>

namespace ornavo {

/// The folder of the executable when a folder "Skins" lies beside it and can be written (a portable copy),
/// otherwise the user's data folder.
std::filesystem::path OwnFolder(const std::filesystem::path& executableFolder,
                                const std::filesystem::path& dataFolder);

/// Where the sample skins are installed beside an executable: in its share folder, or in the source tree of a
/// build. Empty if they are nowhere.
std::filesystem::path SampleFolder(const std::filesystem::path& executableFolder);

/// Copies the sample skins to "Skins" under the own folder when there is none yet; whole or not at all.
/// Failure 75 if it can't.
void BringSamples(const std::filesystem::path& samples, const std::filesystem::path& ownFolder);

}  // namespace ornavo
