// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include <algorithm>
#include <list>
#include <map>
#include <unordered_map>

#include "base/lookup.h"
#include "base/paths.h"
#include "platform/picture_file.h"
#include "platform/picture_worker.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t KeptBytes = std::int64_t{64} << 20;  // of pictures that are kept although unused

std::int64_t bytesInUse = 0;

/// A file at the time it was read. After a change, its size or time differs.
struct Stamp {
    std::string path;
    std::uintmax_t size = 0;
    std::int64_t written = 0;
    auto operator<=>(const Stamp&) const = default;
};

/// The cache of decoded pictures.
struct Shelf {
    std::map<Stamp, std::weak_ptr<const Picture>> known;
    // Files and folders with the times they had when they were first asked for.
    std::map<fs::path::string_type, std::int64_t> seen;
    std::list<PictureRef> kept;  // the most recently used first
    std::unordered_map<const Picture*, std::list<PictureRef>::iterator> places;  // in `kept`
    std::int64_t keptBytes = 0;
    PicturesAhead* ahead = nullptr;  // null unless some are decoded ahead
};

Shelf& shelf() {
    static Shelf only;
    return only;
}

/// False if there is no regular file: reading a pipe might never end, and a folder has no bytes.
bool StampOf(const fs::path& path, Stamp& stamp) {
    const FileState state = StateOf(path);
    stamp = {ToText(path), state.size, state.written};
    return state.type == fs::file_type::regular;
}

void Remember(const fs::path& path) {
    const auto [at, isNew] = shelf().seen.try_emplace(path.native());
    if (!isNew) return;
    at->second = StateOf(path).written;
    const fs::path folder = path.parent_path();
    shelf().seen.try_emplace(folder.native(), StateOf(folder).written);
}

std::int64_t BytesOf(const Picture& picture) {
    return 4 * PixelsOf(picture.size);
}

void DropUntil(std::int64_t most) {
    Shelf& all = shelf();
    while (all.keptBytes > most && !all.kept.empty()) {
        all.keptBytes -= BytesOf(*all.kept.back());
        all.places.erase(all.kept.back().get());
        all.kept.pop_back();
    }
}

void Keep(const PictureRef& picture) {
    Shelf& all = shelf();
    const auto [place, isNew] = all.places.try_emplace(picture.get());
    if (!isNew) return all.kept.splice(all.kept.begin(), all.kept, place->second);
    all.kept.push_front(picture);
    place->second = all.kept.begin();
    all.keptBytes += BytesOf(*picture);
    DropUntil(KeptBytes);
}

/// The picture that the worker has decoded, or that of the file. Null if it is none or exceeds a limit.
QImage Read(const fs::path& path) {
    if (shelf().ahead)
        if (std::optional<QImage> ready = shelf().ahead->Take(path)) return std::move(*ready);
    PictureFile file(path);
    const QSize size = file.Size();
    if (!FitsPicture(size)) return {};
    const PictureMemory memory = PictureMemory::Take(size.isValid() ? PixelsOf(size) : PicturePixelLimit);
    return memory ? file.Decoded() : QImage();
}

/// A picture with the memory reserved for it, so that both are freed together. Null if there is none left.
PictureRef Counted(Picture picture) {
    struct Both {
        Picture picture;
        PictureMemory memory;
    };
    PictureMemory memory = PictureMemory::Take(PixelsOf(picture.size));
    if (!memory) return nullptr;
    auto both = std::make_shared<Both>(Both{std::move(picture), std::move(memory)});
    return PictureRef(both, &both->picture);
}

PictureRef Decode(const fs::path& path) {
    QImage image = Read(path);
    return image.isNull() ? nullptr : Counted(Picture(std::move(image)));
}

/// Reads the header only, if that tells the size of the image.
PictureRef DecodeLater(const fs::path& path) {
    PictureFile file(path);
    const QSize size = file.Size();
    if (!size.isValid() || file.reader().format() == "gif") return Decode(path);
    return Counted(Picture(size, [path, size] {
        QImage image = PictureFile(path).Decoded();
        return image.size() == size ? image : QImage();
    }));
}

PictureRef Shared(const fs::path& path, PictureRef (*make)(const fs::path&)) {
    Remember(path);
    Stamp stamp;
    if (!StampOf(path, stamp)) return nullptr;
    std::weak_ptr<const Picture>& known = shelf().known[stamp];
    PictureRef picture = known.lock();
    if (!picture) known = picture = make(path);
    if (picture) Keep(picture);
    return picture;
}

}  // namespace

PictureMemory PictureMemory::Take(std::int64_t pixels) {
    PictureMemory memory;
    if (pixels <= 0 || pixels > PicturePixelLimit) return memory;
    const std::int64_t bytes = pixels * 4;
    if (bytesInUse + bytes > PictureByteLimit) DropUntil(0);
    if (bytesInUse + bytes > PictureByteLimit) return memory;
    bytesInUse += bytes;
    memory.bytes_ = bytes;
    return memory;
}

void PictureMemory::Give() {
    bytesInUse -= std::exchange(bytes_, 0);
}

bool PicturesChanged() {
    auto& seen = shelf().seen;
    const bool changed = std::any_of(seen.begin(), seen.end(), [](const auto& one) {
        return fileLayer().State(one.first).written != one.second;
    });
    if (changed) seen.clear();
    return changed;
}

PicturesAhead::PicturesAhead(Files files) : files_(std::move(files)) {
    if (std::thread::hardware_concurrency() >= 2) shelf().ahead = this;
}

PicturesAhead::~PicturesAhead() {
    shelf().ahead = nullptr;
}

void PicturesAhead::Begin() {
    std::vector<fs::path> unknown;
    for (const fs::path& file : std::exchange(files_, nullptr)()) {
        Stamp stamp;
        if (!StampOf(file, stamp)) continue;
        const auto known = shelf().known.find(stamp);
        if (known == shelf().known.end() || known->second.expired()) unknown.push_back(file);
    }
    if (unknown.size() >= 2) worker_ = std::make_unique<PictureWorker>(unknown);
}

std::optional<QImage> PicturesAhead::Take(const fs::path& file) {
    if (files_) Begin();
    return worker_ ? worker_->Take(file) : std::nullopt;
}

PictureRef LoadPicture(const fs::path& path) {
    PictureRef picture = Shared(path, Decode);
    return picture && picture->image().isNull() ? nullptr : picture;
}

PictureRef LoadPictureForLater(const fs::path& path) {
    return Shared(path, DecodeLater);
}

QImage LoadThumbnail(const fs::path& path, const QSize& most) {
    Stamp stamp;
    if (!StampOf(path, stamp)) return {};
    PictureFile file(path);
    const QSize size = file.Size();
    if (!size.isValid() || !FitsPicture(size) || PixelsOf(size) > ThumbnailPixelLimit) return {};
    const PictureMemory memory = PictureMemory::Take(PixelsOf(size));
    if (!memory) return {};
    if (size.width() > most.width() || size.height() > most.height())
        file.reader().setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return file.Decoded();
}

namespace {

bool HasFrames(const fs::path& path) {
    PictureFile file(path);
    if (file.reader().format() != "gif" || !file.reader().supportsAnimation()) return false;
    const QSize size = file.Size();
    return size.isValid() && FitsPicture(size) && file.reader().imageCount() > 1;
}

}  // namespace

std::int64_t PixelsOfGif(const fs::path& path) {
    const QSize size = PictureFile(path, "gif").Size();
    return size.isValid() && FitsPicture(size) ? PixelsOf(size) : 0;
}

bool IsAnimatedGIF(const fs::path& path) {
    Remember(path);
    Stamp stamp;
    if (!StampOf(path, stamp)) return false;
    static std::map<Stamp, bool> known;  // counting frames reads the whole file
    const auto [answer, isNew] = known.try_emplace(stamp, false);
    if (isNew) answer->second = HasFrames(path);
    return answer->second;
}

}  // namespace ornavo
