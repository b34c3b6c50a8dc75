// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <random>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <signal.h>
#include <unistd.h>
#endif

#include "base/failure.h"
#include "base/paths.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

constexpr int AlreadyThere = 58;
constexpr std::size_t Chunk = 1 << 16;

/// The few calls that the systems spell differently.
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
}  // a rename is flushed by itself
int ProcessId() {
    return _getpid();
}
bool IsRunning(int) {
    return true;
}  // nothing is removed that may be in use
#else
int Create(const fs::path& path) {
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}
// Not blocking: opening a pipe would wait for its other end.
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
int ProcessId() {
    return ::getpid();
}
bool IsRunning(int process) {
    return ::kill(process, 0) == 0 || errno != ESRCH;
}
#endif
}  // namespace disk

int NumberOf(int reason) {
    switch (reason) {
        case ENOENT:
            return 53;
        case EEXIST:
            return AlreadyThere;
        case ENOSPC:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return 61;
        default:
            return 75;
    }
}

std::string Quoted(const fs::path& path) {
    return "\"" + ToText(path) + "\"";
}

Failure Refused(int reason) {
    return Failure(NumberOf(reason), "Files", std::generic_category().message(reason));
}

Failure NotAFile() {
    return Failure(75, "Files", "It is not a plain file");
}

/// Runs a step on a file; a failure then says which file and what became impossible.
template <class Step>
auto Named(const fs::path& path, const char* done, Step&& step) {
    try {
        return step();
    } catch (const Failure& failure) {
        throw Failure(failure.number(), failure.source(),
                      "The file " + Quoted(path) + " could not be " + done + ": " + failure.description());
    }
}

/// Some file systems can't flush; that is no reason to refuse a save.
bool CannotFlush(int reason) {
    return reason == EINVAL || reason == ENOTSUP || reason == EROFS;
}

FileLayer realDisk;
FileLayer* layerInUse = &realDisk;

fs::file_type TypeOf(const fs::path& path) {
    std::error_code ignored;
    return fs::status(path, ignored).type();
}

/// Something that stands there and is no plain file.
bool IsOther(fs::file_type type) {
    return type != fs::file_type::regular && type != fs::file_type::not_found && type != fs::file_type::none;
}

/// Where the path leads when it is a link, or a chain of them; a link to what isn't there yet counts.
fs::path BehindLinks(fs::path path) {
    std::error_code error;
    for (int hops = 0; hops < 40 && fs::is_symlink(fs::symlink_status(path, error)); ++hops) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / next;  // an absolute `next` takes the place of all
    }
    return path;
}

// Between them stand the process that writes the file, "-" and a number of its own.
constexpr std::string_view ScratchStart = ".ornavo-", ScratchEnd = ".tmp";

/// A file beside the target that takes its place at the end, or disappears.
class Scratch {
public:
    explicit Scratch(const fs::path& target) : target_(target) {
        std::random_device dice;
        for (int tries = 0;; ++tries) {
            path_ = target.parent_path() / (std::string(ScratchStart) + std::to_string(disk::ProcessId()) +
                                            "-" + std::to_string(dice()) + std::string(ScratchEnd));
            try {
                file_ = fileLayer().Create(path_);
                break;
            } catch (const Failure& failure) {
                if (failure.number() != AlreadyThere || tries == 20) throw;
            }
        }
        KeepPermissions();
    }
    ~Scratch() {
        if (file_ >= 0) Attempt([&] { fileLayer().Close(file_); });
        if (!placed_) Attempt([&] { fileLayer().Remove(path_); });
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    void Write(std::string_view bytes) { fileLayer().Write(file_, bytes); }
    void TakePlace() {
        fileLayer().Flush(file_);
        const int file = file_;
        file_ = -1;  // a failing close has closed it all the same
        fileLayer().Close(file);
        fileLayer().Rename(path_, target_);
        placed_ = true;
        // From here on the new file is there; that its folder could not be flushed changes nothing of it.
        Attempt([&] { fileLayer().FlushFolder(target_.parent_path()); });
    }

private:
    /// Before the first byte is written, so that nobody reads what the old file kept to itself.
    void KeepPermissions() const {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::exists(old)) fs::permissions(path_, old.permissions(), error);
    }
    fs::path target_;
    fs::path path_;
    int file_ = -1;
    bool placed_ = false;
};

/// A file that is read, closed by scope.
class InFile {
public:
    explicit InFile(const fs::path& path) : file_(fileLayer().Open(path)) {}
    ~InFile() {
        Attempt([&] { fileLayer().Close(file_); });
    }
    InFile(const InFile&) = delete;
    InFile& operator=(const InFile&) = delete;
    std::size_t Read(char* bytes, std::size_t size) const { return fileLayer().ReadSome(file_, bytes, size); }

private:
    int file_;
};

/// The path itself. Failure 75 where something else than a file or a link stands.
const fs::path& Replaceable(const fs::path& path) {
    std::error_code ignored;
    const fs::file_type type = fs::symlink_status(path, ignored).type();
    if (path.filename().empty() || (IsOther(type) && type != fs::file_type::symlink)) throw NotAFile();
    return path;
}

/// What the path leads to. Failure 75 where that is no file, or links lead to each other.
fs::path ReplaceableBehindLinks(const fs::path& path) {
    fs::path target = BehindLinks(path);
    std::error_code ignored;
    if (fs::is_symlink(fs::symlink_status(target, ignored))) throw NotAFile();
    return Replaceable(target);
}

/// Whether nobody writes this scratch file any more.
bool IsLeft(const fs::path& file, std::string_view name) {
    name.remove_prefix(ScratchStart.size());
    int process = 0;
    const auto [end, failure] = std::from_chars(name.data(), name.data() + name.size(), process);
    if (failure == std::errc() && *end == '-') return !disk::IsRunning(process);
    std::error_code error;
    const auto written = fs::last_write_time(file, error);
    return !error && written < fs::file_time_type::clock::now() - std::chrono::hours(24);
}

void PutInPlace(const fs::path& target, std::string_view bytes) {
    Scratch scratch(target);
    scratch.Write(bytes);
    scratch.TakePlace();
}

}  // namespace

int FileLayer::Create(const fs::path& path) {
    const int file = disk::Create(path);
    if (file < 0) throw Refused(errno);
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
}

void FileLayer::Remove(const fs::path& path) {
    std::error_code error;
    fs::remove(path, error);
    if (error) throw Refused(error.value());
}

void FileLayer::MakeFolder(const fs::path& path) {
    std::error_code error;
    fs::create_directory(path, error);
    if (error) throw Refused(error.value());
}

void FileLayer::FlushFolder(const fs::path& path) {
    if (disk::FlushFolder(path) != 0 && !CannotFlush(errno)) throw Refused(errno);
}

int FileLayer::Open(const fs::path& path) {
    if (IsOther(TypeOf(path))) throw NotAFile();
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
    const std::uintmax_t expected = fs::file_size(path, error);  // a hint alone: the file may be growing
    std::string bytes;
    for (std::size_t size = 0, count = 1; count > 0; bytes.resize(size += count)) {
        bytes.resize(size > 0 || error ? size + Chunk : static_cast<std::size_t>(expected) + 1);
        count = file.Read(bytes.data() + size, bytes.size() - size);
    }
    return bytes;
}

FileLayer& fileLayer() {
    return *layerInUse;
}
void UseFileLayer(FileLayer* layer) {
    layerInUse = layer ? layer : &realDisk;
}

bool FileExists(std::string_view path) {
    return TypeOf(OnDisk(path)) == fs::file_type::regular;
}

bool NothingStandsAt(std::string_view path) {
    std::error_code ignored;
    return fs::symlink_status(OnDisk(path), ignored).type() == fs::file_type::not_found;
}

std::string ReadFile(std::string_view path) {
    const fs::path place = OnDisk(path);
    return Named(place, "read", [&] { return fileLayer().Read(place); });
}

void ReplaceFile(const fs::path& path, std::string_view bytes) {
    Named(path, "written", [&] { PutInPlace(ReplaceableBehindLinks(path), bytes); });
}

void ReplaceFileItself(const fs::path& path, std::string_view bytes) {
    Named(path, "written", [&] { PutInPlace(Replaceable(path), bytes); });
}

void RemoveLeftScratchFiles(const fs::path& folder) {
    std::vector<fs::path> left;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string name = ToText(at->path().filename());
        if (name.starts_with(ScratchStart) && name.ends_with(ScratchEnd) && IsLeft(at->path(), name))
            left.push_back(at->path());
    }
    for (const fs::path& file : left) Attempt([&] { fileLayer().Remove(file); });
}

void CopyFileWhole(const fs::path& source, const fs::path& target) {
    Named(source, "copied", [&] {
        const InFile from(source);
        Scratch scratch(Replaceable(target));
        std::string chunk(Chunk, '\0');
        while (const std::size_t count = from.Read(chunk.data(), chunk.size()))
            scratch.Write(std::string_view(chunk).substr(0, count));
        scratch.TakePlace();
    });
}

}  // namespace ornavo
