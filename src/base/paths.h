// SPDX-License-Identifier: MIT
// Taking paths apart, and where a path of a skin lies on this disk. "\" and "/" both separate.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

std::string GetParentFolderName(std::string_view path);  // always ends in a separator
std::string GetBaseName(std::string_view path);          // file name without extension
std::string GetFileName(std::string_view path);          // of "a\b\" it is "b"
std::string GetExtensionName(std::string_view path);     // lower case, without the point
std::string GetFileExtension(std::string_view path);     // lower case, with the point; "" if there is none
/// A name that is safe for a folder or file: separators, ":", "*", "?" and their like replaced or removed.
std::string CleanFileName(std::string_view name);
/// The path with a separator at its end: "\" where the path itself uses only that, otherwise "/".
std::string WithSeparator(std::string_view folder);
/// Whether the name can be that of one folder: not blank, ".", "..", no separator, unchanged by
/// CleanFileName.
bool IsPlainName(std::string_view name);

/// The place on this disk: separators made native, and every part that is not there under its exact name
/// found without regard to case when just such a one exists (the first by byte order of several).
std::filesystem::path OnDisk(std::string_view path);
/// The same path as text, with native separators.
std::string ToText(const std::filesystem::path& path);

}  // namespace ornavo
