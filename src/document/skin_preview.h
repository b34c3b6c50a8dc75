// SPDX-License-Identifier: MIT
// What a skin looks like, for lists of skins: found without opening it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

/// The value of the preference "SP_PicPreview" in the bytes of a settings file; "" for none.
std::string PreviewName(std::string_view bytes);

/// The files that may show the skin in the folder, the best first: that which its preferences name, then
/// those named "preview". Never fails: a settings file that can't be read names none.
std::vector<std::filesystem::path> PreviewFiles(const std::filesystem::path& folder);

}  // namespace ornavo
