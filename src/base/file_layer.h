// SPDX-License-Identifier: MIT
// The single steps towards the disk. All of them go through one FileLayer, so that a test can let any of
// them fail.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/failure.h"

namespace ornavo {

inline constexpr std::size_t Chunk = 1 << 16;  // bytes of a file that are read at once

/// Each step throws a Failure (53 file, 75 path, 61 disk full, 58 there
/// already) with the system's reason. The base class is
/// the real disk.
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

/// A file that is read; its end closes it.
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

std::filesystem::file_type TypeOf(const std::filesystem::path& path);  // of what a link leads to; never fails
/// Something that stands there and is no plain file.
bool IsOther(std::filesystem::file_type type);
Failure NotAFile();

}  // namespace ornavo
