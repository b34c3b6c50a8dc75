// SPDX-License-Identifier: MIT
// Folders, existence, copies, and a file replaced whole. Every step that can fail goes through one
// FileLayer, so that a test can let any of them fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace ornavo {

/// The single steps towards the disk. Each throws a Failure (53 file, 75 path, 61 disk full, 58 there
/// already) with the system's reason; the functions below say which file it was. The base class is the
/// real disk.
class FileLayer {
public:
    virtual ~FileLayer() = default;
    virtual int Create(const std::filesystem::path& path);  // a new file, refused if there is one
    virtual void Write(int file, std::string_view bytes);   // all of them
    virtual void Flush(int file);                           // down to the disk
    virtual void Close(int file);
    virtual void Rename(const std::filesystem::path& from, const std::filesystem::path& to);  // replaces
    virtual void Remove(const std::filesystem::path& path);
    virtual void MakeFolder(const std::filesystem::path& path);  // one level
    virtual void FlushFolder(const std::filesystem::path& path);
    virtual int Open(const std::filesystem::path& path);                    // to read; plain files only
    virtual std::size_t ReadSome(int file, char* bytes, std::size_t size);  // 0 at the end
    virtual std::string Read(const std::filesystem::path& path);            // the whole file
};
FileLayer& fileLayer();
void UseFileLayer(FileLayer* layer);  // null: the real disk again

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
