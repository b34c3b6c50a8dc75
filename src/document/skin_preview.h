// SPDX-License-Identifier: MIT
// Finds a picture of a skin for lists of skins, without opening the skin.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

/// The value of the preference "SP_PicPreview" in the bytes of a settings file; "" if there is none.
std::string PreviewName(std::string_view bytes);

/// The files in the folder that may show the skin, the best first: the one that its preferences name, then
/// those named "preview". Never fails; a settings file that cannot be read is ignored.
std::vector<std::filesystem::path> PreviewFiles(const std::filesystem::path& folder);

}  // namespace ornavo
