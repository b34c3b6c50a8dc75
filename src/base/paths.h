// SPDX-License-Identifier: MIT
// The parts of a path, and where a path of a skin is on this disk. "\" and "/" both separate.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

std::string GetParentFolderName(std::string_view path);  // ends in a separator; "./" for a bare name
std::string GetBaseName(std::string_view path);          // file name without extension
std::string GetFileName(std::string_view path);          // "b" for "a\b\"
std::string GetExtensionName(std::string_view path);     // lower case, without the point
std::string GetFileExtension(std::string_view path);     // lower case, with the point; "" if there is none
/// A name that is safe for a folder or file: separators, ":", "*", "?" and the like are replaced or removed.
std::string CleanFileName(std::string_view name);
/// The path with a separator at its end: "\" if the path has only that kind, otherwise "/". "./" for "".
std::string WithSeparator(std::string_view folder);
/// Whether the name can be that of a single folder: not blank, not "." or "..", and unchanged by
/// CleanFileName, so without a separator.
bool IsPlainName(std::string_view name);

/// The file's path on this disk, with native separators. A part that does not exist under its exact name is
/// looked for without regard to case; of several the first by byte order is taken. Where the system has no
/// drives, a path with a drive letter gives a place that cannot exist.
std::filesystem::path OnDisk(std::string_view path);
/// The path as UTF-8 text with native separators.
std::string ToText(const std::filesystem::path& path);

}  // namespace ornavo
