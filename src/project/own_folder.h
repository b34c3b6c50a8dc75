// SPDX-License-Identifier: MIT
// The program's own folder, and the sample skins that are copied there at first use.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

/// The executable's folder if it has a writable folder "Skins" (a portable copy), otherwise the user's data
/// folder.
std::filesystem::path OwnFolder(const std::filesystem::path& executableFolder,
                                const std::filesystem::path& dataFolder);

/// The folder of the user's skins in the own folder, without a separator at its end.
std::string SkinsFolder(std::string_view ownFolder);

/// The installed sample skins: in the share folder beside the executable's folder, or in the source tree of a
/// build. Empty if there are none.
std::filesystem::path SampleFolder(const std::filesystem::path& executableFolder);

/// Copies the sample skins to "Skins" in the own folder, whole or not at all, unless that exists. Failure 75
/// if that is impossible.
void BringSamples(const std::filesystem::path& samples, const std::filesystem::path& ownFolder);

}  // namespace ornavo
