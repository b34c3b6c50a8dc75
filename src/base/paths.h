// SPDX-License-Identifier: MIT
// The parts of a path. "\" and "/" both separate. Nothing here looks at the disk.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

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

/// The path with native separators and without one at its end. Where the system has no drives, a path with a
/// drive letter gives a place that cannot exist. base/lookup.h finds the file that is meant.
std::string NativeText(std::string_view path);
std::filesystem::path NativePath(std::string_view path);
/// The folder and the name in it; "" and the path for a bare name, and no name for the root.
std::pair<std::string, std::string> SplitPath(const std::string& native);
std::string JoinPath(std::string folder, std::string_view name);
/// The path as UTF-8 text with native separators.
std::string ToText(const std::filesystem::path& path);

}  // namespace ornavo
