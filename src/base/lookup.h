// SPDX-License-Identifier: MIT
// Where a path of a skin is on this disk, and what is there.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_layer.h"

namespace ornavo {

/// The file's path on this disk, with native separators. A part that does not exist under its exact name is
/// looked for without regard to case; of several the first by byte order is taken. Where the system has no
/// drives, a path with a drive letter gives a place that cannot exist.
std::filesystem::path OnDisk(std::string_view path);
FileState StateOf(const std::filesystem::path& path);  // never fails
/// The regular file that is meant by the path, as a text with native separators; "" if there is none. Never
/// fails.
std::string FindFile(std::string_view path);
bool FileExists(std::string_view path);
bool FolderExists(std::string_view path);
/// The names in a folder, in no order; none if it can't be read.
std::vector<std::string> NamesIn(const std::filesystem::path& folder);

/// While one lives, a folder is listed at most once and no file is asked for twice, found or not; nothing in
/// a listed folder is asked for whose type the listing tells. What the program itself makes and removes is
/// entered; what other programs do is seen after it. So it lives for one operation, such as a composition or
/// a save, in which nobody is asked. An inner one shares what the outer one knows.
class LookupScope {
public:
    LookupScope();
    ~LookupScope();
    LookupScope(const LookupScope&) = delete;
    LookupScope& operator=(const LookupScope&) = delete;

private:
    bool isOuter_;
};

}  // namespace ornavo
