// SPDX-License-Identifier: MIT
// Every elementary disk operation is a call of one FileLayer, so that a test can make any of them fail.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace ornavo {

inline constexpr std::size_t Chunk = 1 << 16;  // bytes of a file that are read at once

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
};
FileLayer& fileLayer();
void UseFileLayer(FileLayer* layer);  // null: the real disk

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

std::filesystem::file_type TypeOf(const std::filesystem::path& path);  // follows links; never fails
/// Whether something exists there that isn't a regular file.
bool IsOther(std::filesystem::file_type type);
Failure NotAFile();

}  // namespace ornavo
