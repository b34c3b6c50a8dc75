// SPDX-License-Identifier: MIT
// Every elementary disk operation is a call of one FileLayer, so that a test can make any of them fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"

namespace ornavo {

inline constexpr std::size_t Chunk = 1 << 16;  // bytes of a file that are read at once

/// What there is at a path; links are followed.
struct FileState {
    std::filesystem::file_type type =
        std::filesystem::file_type::not_found;  // none: the system does not tell
    std::uintmax_t size = 0;                    // bytes
    std::int64_t written = 0;                   // the time of the last change, nanoseconds
};

/// An entry of a folder.
struct FolderEntry {
    std::string name;  // UTF-8
    std::filesystem::file_type
        type;  // regular or directory where the listing tells it, as it doesn't of links
};

/// The elementary disk operations; the base class works on the real disk. A failing one throws a Failure (53
/// not found, 58 exists already, 61 disk full, 75 anything else) with the system's reason.
class FileLayer {
public:
    virtual ~FileLayer() = default;
    virtual int Create(const std::filesystem::path& path);  // a new file; fails if it exists
    virtual void Write(int file, std::string_view bytes);   // all the bytes
    virtual void Flush(int file);                           // waits until the disk has them
    virtual void Close(int file);
    virtual void Rename(const std::filesystem::path& from, const std::filesystem::path& to);  // replaces `to`
    virtual void Remove(const std::filesystem::path& path);
    virtual void MakeFolder(const std::filesystem::path& path);  // one level; its parent must exist
    virtual void FlushFolder(const std::filesystem::path& path);
    virtual int Open(const std::filesystem::path& path);                    // for reading; regular files only
    virtual std::size_t ReadSome(int file, char* bytes, std::size_t size);  // the count; 0 at the end
    virtual std::string Read(const std::filesystem::path& path);            // the whole file
    virtual FileState State(const std::filesystem::path& path);             // never fails
    /// The entries without "." and ".."; those that can be read. Never fails.
    virtual std::vector<FolderEntry> List(const std::filesystem::path& folder);
};
FileLayer& fileLayer();
void UseFileLayer(FileLayer* layer);  // null: the real disk

/// Is told what the file layer has made or removed.
class FileListener {
public:
    virtual ~FileListener() = default;
    virtual void Made(const std::filesystem::path& path) = 0;
    virtual void Gone(const std::filesystem::path& path) = 0;
};
void UseFileListener(FileListener* listener);  // null: nobody listens

/// A file that is open for reading; the destructor closes it.
class InFile {
public:
    explicit InFile(const std::filesystem::path& path) : file_(fileLayer().Open(path)) {}
    ~InFile() {
        Attempt([&] { fileLayer().Close(file_); });
    }
    InFile(const InFile&) = delete;
    InFile& operator=(const InFile&) = delete;
    std::size_t Read(char* bytes, std::size_t size) const { return fileLayer().ReadSome(file_, bytes, size); }

private:
    int file_;
};

bool Exists(std::filesystem::file_type type);
/// Whether something exists there that isn't a regular file.
bool IsOther(std::filesystem::file_type type);
Failure NotAFile();

}  // namespace ornavo
