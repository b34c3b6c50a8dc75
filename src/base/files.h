// SPDX-License-Identifier: MIT
// Folders, existence, copies, and a file replaced whole. A failure says which file it was.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

bool FileExists(std::string_view path);  // a regular file, found as OnDisk finds; never fails
bool FolderExists(std::string_view path);
/// Whether the place is free: not even a link that leads nowhere stands there. False where the system won't
/// tell.
bool NothingStandsAt(std::string_view path);
std::string ReadFile(std::string_view path);  // plain files only; found as OnDisk finds
/// The file has these bytes when the call returns, and the ones it had before when it throws.
/// Written beside it, flushed, renamed; leaves no scratch file. The permission bits of an old file stay, a
/// link stays and what it leads to is replaced. Failure 75 where something else than a file stands.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes);
/// The same, but a link in the file's place is replaced itself, as by CopyFileWhole.
void ReplaceFileItself(const std::filesystem::path& path, std::string_view bytes);
/// A copy that is whole or not there; an existing target is replaced. A link in the target's place is
/// replaced itself: pictures come from strangers, and a copy of one must not land where their link leads.
void CopyFileWhole(const std::filesystem::path& source, const std::filesystem::path& target);
/// Removes the scratch files in the folder that a broken off process has left. Those of a running one stay;
/// one that doesn't tell whose it is goes when it is older than a day. Never fails.
void RemoveLeftScratchFiles(const std::filesystem::path& folder);
/// One level; true if the folder exists afterwards. Never throws.
bool CreateFolderOnce(std::string_view path);
/// Every missing folder of the path; true if the last exists afterwards. Never throws.
bool MakePath(std::string_view path);
/// Cuts the first part off a working string whose separators are "\\\" (three of them):
/// with `first` the part between the separator that it begins with and the next, otherwise the part before
/// the next one. "*eod*" when there is none.
std::string NextPathPart(std::string& path, bool first);

}  // namespace ornavo
