// SPDX-License-Identifier: MIT
// Folders, copies, and replacing a whole file. A failure names the file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

/// Whether the path is free: nothing has that name, not even a broken link. False if the system cannot tell.
bool NothingStandsAt(std::string_view path);
std::string ReadFile(std::string_view path);  // regular files only, looked up by OnDisk
/// When the call returns, the file has these bytes; when it throws, the file is as it was. The bytes are
/// written to a scratch file beside it, which is flushed and then renamed or removed. The permission bits of
/// an old file are kept. A link is kept, and the file it leads to is replaced. Failure 75 if the path names
/// something that isn't a file.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes);
/// As ReplaceFile, but a link is itself replaced.
void ReplaceFileItself(const std::filesystem::path& path, std::string_view bytes);
/// Copies a file whole or not at all; an existing target is replaced. A link at the target is itself
/// replaced: pictures come from strangers, and a copy must not be written to where their link leads.
void CopyFileWhole(const std::filesystem::path& source, const std::filesystem::path& target);
/// Removes the scratch files that a killed process has left in the folder. Those of a running process stay. A
/// scratch file without a process number is removed once it is older than a day. Never fails.
void RemoveLeftScratchFiles(const std::filesystem::path& folder);
/// Makes one level. True if the folder exists afterwards. Never throws.
bool CreateFolderOnce(std::string_view path);
/// Makes every missing folder of the path. True if the whole path exists afterwards. Never throws.
bool MakePath(std::string_view path);
/// Cuts the first part off `path`, whose separators are "\\\" (three backslashes), and returns it. With
/// `first`, the path begins with a separator and the part is what follows it; otherwise the path begins with
/// the part. "*eod*" when no further separator follows.
std::string NextPathPart(std::string& path, bool first);

}  // namespace ornavo
