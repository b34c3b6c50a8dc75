// SPDX-License-Identifier: MIT
#include "base/file_layer.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <dirent.h>
#include <unistd.h>
#endif

namespace ornavo {

namespace fs = std::filesystem;

namespace {

/// The system calls whose names differ between systems.
namespace disk {
#ifdef _WIN32
int Create(const fs::path& path) {
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
}
int Open(const fs::path& path) {
    return _wopen(path.c_str(), _O_RDONLY | _O_BINARY);
}
long Write(int file, const char* bytes, std::size_t size) {
    return _write(file, bytes, static_cast<unsigned>(std::min<std::size_t>(size, 1 << 30)));
}
long Read(int file, char* bytes, std::size_t size) {
    return _read(file, bytes, static_cast<unsigned>(size));
}
int Flush(int file) {
    return _commit(file);
}
int Close(int file) {
    return _close(file);
}
int FlushFolder(const fs::path&) {
    return 0;
}  // Windows flushes a rename by itself
FileState State(const fs::path& path) {
    std::error_code error;
    FileState state = {.type = fs::status(path, error).type()};
    if (state.type == fs::file_type::regular) state.size = fs::file_size(path, error);
    state.written = fs::last_write_time(path, error).time_since_epoch().count() * 100;
    return state;
}
std::vector<FolderEntry> List(const fs::path& folder) {
    std::vector<FolderEntry> entries;
    std::error_code error, ignored;
    for (fs::directory_iterator at(folder.empty() ? fs::path(".") : folder, error), end; !error && at != end;
         at.increment(error)) {
        const std::u8string name = at->path().filename().u8string();
        entries.push_back({std::string(name.begin(), name.end()), at->status(ignored).type()});
    }
    return entries;
}
#else
int Create(const fs::path& path) {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}
// Not blocking, because opening a pipe would wait for its other end.
int Open(const fs::path& path) {
    return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}
long Write(int file, const char* bytes, std::size_t size) {
    return ::write(file, bytes, size);
}
long Read(int file, char* bytes, std::size_t size) {
    return ::read(file, bytes, size);
}
int Flush(int file) {
    return ::fsync(file);
}
int Close(int file) {
    return ::close(file);
}
int FlushFolder(const fs::path& path) {
    const int folder = ::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return -1;
    const int result = ::fsync(folder);
    const int reason = errno;
    ::close(folder);
    errno = reason;
    return result;
}
fs::file_type TypeOf(mode_t mode) {
    if (S_ISREG(mode)) return fs::file_type::regular;
    return S_ISDIR(mode) ? fs::file_type::directory : fs::file_type::unknown;
}
FileState State(const fs::path& path) {
    struct stat found = {};
    if (::stat(path.c_str(), &found) == 0)
        return {TypeOf(found.st_mode), static_cast<std::uintmax_t>(found.st_size),
                std::int64_t{found.st_mtim.tv_sec} * 1'000'000'000 + found.st_mtim.tv_nsec};
    const bool isAbsent = errno == ENOENT || errno == ENOTDIR;
    return {isAbsent ? fs::file_type::not_found : fs::file_type::none};
}
fs::file_type TypeOf(const dirent& entry) {
    if (entry.d_type == DT_REG) return fs::file_type::regular;
    return entry.d_type == DT_DIR ? fs::file_type::directory : fs::file_type::unknown;
}
// The library's iterator makes a path of each name.
std::vector<FolderEntry> List(const fs::path& folder) {
    std::vector<FolderEntry> entries;
    DIR* const names = ::opendir(folder.empty() ? "." : folder.c_str());
    if (!names) return entries;
    while (const dirent* entry = ::readdir(names)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") entries.push_back({std::string(name), TypeOf(*entry)});
    }
    ::closedir(names);
    return entries;
}
#endif
}  // namespace disk

int NumberOf(int reason) {
    switch (reason) {
        case ENOENT:
            return Failure::FileNotFound;
        case EEXIST:
            return Failure::FileExists;
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return Failure::DiskFull;
        default:
            return Failure::PathError;
    }
}

Failure Refused(int reason) {
    return Failure(NumberOf(reason), "Files", std::generic_category().message(reason));
}

/// Some file systems cannot flush, which is no reason to refuse a save.
bool CannotFlush(int reason) {
    return reason == EINVAL || reason == ENOTSUP || reason == EROFS;
}

FileLayer realDisk;
FileLayer* layerInUse = &realDisk;
FileListener* listenerInUse = nullptr;

void TellMade(const fs::path& path) {
    if (listenerInUse) listenerInUse->Made(path);
}
void TellGone(const fs::path& path) {
    if (listenerInUse) listenerInUse->Gone(path);
}

}  // namespace

Failure NotAFile() {
    return Failure(Failure::PathError, "Files", "It is not a plain file");
}

bool Exists(fs::file_type type) {
    return type != fs::file_type::not_found && type != fs::file_type::none;
}

bool IsOther(fs::file_type type) {
    return Exists(type) && type != fs::file_type::regular;
}

int FileLayer::Create(const fs::path& path) {
    const int file = disk::Create(path);
    if (file < 0) throw Refused(errno);
    TellMade(path);
    return file;
}

void FileLayer::Write(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const long written = disk::Write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) throw Refused(written == 0 ? ENOSPC : errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void FileLayer::Flush(int file) {
    if (disk::Flush(file) != 0 && !CannotFlush(errno)) throw Refused(errno);
}

void FileLayer::Close(int file) {
    if (disk::Close(file) != 0 && errno != EINTR) throw Refused(errno);
}

void FileLayer::Rename(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::rename(from, to, error);
    if (error) throw Refused(error.value());
    TellGone(from);
    TellMade(to);
}

void FileLayer::Remove(const fs::path& path) {
    std::error_code error;
    fs::remove(path, error);
    if (error) throw Refused(error.value());
    TellGone(path);
}

void FileLayer::MakeFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directory(path, error);
    if (error) throw Refused(error.value());
    TellMade(path);
}

void FileLayer::FlushFolder(const fs::path& path) {
    if (disk::FlushFolder(path) != 0 && !CannotFlush(errno)) throw Refused(errno);
}

int FileLayer::Open(const fs::path& path) {
    if (IsOther(State(path).type)) throw NotAFile();
    const int file = disk::Open(path);
    if (file < 0) throw Refused(errno);
    return file;
}

std::size_t FileLayer::ReadSome(int file, char* bytes, std::size_t size) {
    for (;;) {
        const long count = disk::Read(file, bytes, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) throw Refused(errno);
    }
}

std::string FileLayer::Read(const fs::path& path) {
    const InFile file(path);
    std::error_code error;
    const std::uintmax_t expected = fs::file_size(path, error);  // only a hint: the file may be growing
    std::string bytes;
    bytes.reserve(error ? Chunk : static_cast<std::size_t>(expected) + 1);  // one more to see the end
    for (std::size_t size = 0, count = 1; count > 0; bytes.resize(size += count)) {
        bytes.resize(size < bytes.capacity() ? bytes.capacity() : size + Chunk);
        count = file.Read(bytes.data() + size, bytes.size() - size);
    }
    return bytes;
}

FileState FileLayer::State(const fs::path& path) {
    return disk::State(path);
}

std::vector<FolderEntry> FileLayer::List(const fs::path& folder) {
    return disk::List(folder);
}

FileLayer& fileLayer() {
    return *layerInUse;
}
void UseFileListener(FileListener* listener) {
    listenerInUse = listener;
}
void UseFileLayer(FileLayer* layer) {
    layerInUse = layer ? layer : &realDisk;
}

}  // namespace ornavo
