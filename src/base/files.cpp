// SPDX-License-Identifier: MIT
#include "base/files.h"

#include <cerrno>
#include <charconv>
#include <chrono>
#include <random>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#include <csignal>
#endif

#include "base/file_layer.h"
#include "base/lookup.h"
#include "base/paths.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
int ProcessId() {
    return _getpid();
}
bool IsRunning(int) {
    return true;
}  // so that no file in use is removed
#else
int ProcessId() {
    return ::getpid();
}
bool IsRunning(int process) {
    return ::kill(process, 0) == 0 || errno != ESRCH;
}
#endif

std::string Quoted(const fs::path& path) {
    return "\"" + ToText(path) + "\"";
}

/// Runs an operation on a file; a failure of it then names the file and what could not be done.
template <class Step>
auto Named(const fs::path& path, const char* done, Step&& step) {
    try {
        return step();
    } catch (const Failure& failure) {
        throw Failure(failure.number(), failure.source(),
                      "The file " + Quoted(path) + " could not be " + done + ": " + failure.description());
    }
}

/// Where the path leads if it is a link or a chain of links. The last target need not exist.
fs::path BehindLinks(fs::path path) {
    std::error_code error;
    for (int hops = 0; hops < 40 && fs::is_symlink(fs::symlink_status(path, error)); ++hops) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / next;  // an absolute `next` replaces the whole path
    }
    return path;
}

// Between these two parts of the name are the process id, "-" and a random number.
constexpr std::string_view ScratchStart = ".ornavo-", ScratchEnd = ".tmp";

/// A new file beside the target. It either replaces the target or is removed.
class Scratch {
public:
    explicit Scratch(const fs::path& target) : target_(target) {
        std::random_device dice;
        for (int tries = 0;; ++tries) {
            path_ = target.parent_path() / (std::string(ScratchStart) + std::to_string(ProcessId()) + "-" +
                                            std::to_string(dice()) + std::string(ScratchEnd));
            try {
                file_ = fileLayer().Create(path_);
                break;
            } catch (const Failure& failure) {
                if (failure.number() != Failure::FileExists || tries == 20) throw;
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
        file_ = -1;  // even a close that fails has closed the file
        fileLayer().Close(file);
        fileLayer().Rename(path_, target_);
        placed_ = true;
        // The new file is in place by now, even if its folder cannot be flushed.
        Attempt([&] { fileLayer().FlushFolder(target_.parent_path()); });
    }

private:
    /// Called before the first byte is written, so that nobody can read what the old file kept private.
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

/// Returns the path. Failure 75 if it names something other than a file or a link.
const fs::path& Replaceable(const fs::path& path) {
    std::error_code ignored;
    const fs::file_type type = fs::symlink_status(path, ignored).type();
    if (path.filename().empty() || (IsOther(type) && type != fs::file_type::symlink)) throw NotAFile();
    return path;
}

/// Where the path leads. Failure 75 if that is not a file, or if the links form a ring.
fs::path ReplaceableBehindLinks(const fs::path& path) {
    fs::path target = BehindLinks(path);
    std::error_code ignored;
    if (fs::is_symlink(fs::symlink_status(target, ignored))) throw NotAFile();
    return Replaceable(target);
}

/// Whether no process writes this scratch file any more.
bool IsLeft(const fs::path& file, std::string_view name) {
    name.remove_prefix(ScratchStart.size());
    int process = 0;
    const auto [end, failure] = std::from_chars(name.data(), name.data() + name.size(), process);
    if (failure == std::errc() && *end == '-') return !IsRunning(process);
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
    for (const std::string& name : NamesIn(folder))
        if (name.starts_with(ScratchStart) && name.ends_with(ScratchEnd) && IsLeft(folder / name, name))
            Attempt([&] { fileLayer().Remove(folder / name); });
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
