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
}  // nothing is removed that may be in use
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
