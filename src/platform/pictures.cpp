// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include <QFile>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <atomic>
#include <list>
#include <map>

#include "base/lookup.h"
#include "base/paths.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t KeptBytes = std::int64_t{64} << 20;  // of pictures that are kept although unused
constexpr int DecoderMegabytes = 256;                       // enough for PicturePixelLimit at 4 bytes

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
    std::int64_t keptBytes = 0;
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

QString FileName(const fs::path& path) {
    return Shown(ToText(path));
}

std::int64_t PixelsOf(const QSize& size) {
    return std::int64_t{size.width()} * size.height();
}

void PrepareReader(QImageReader& reader) {
    QImageReader::setAllocationLimit(DecoderMegabytes);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
}

void DropUntil(std::int64_t most) {
    Shelf& all = shelf();
    while (all.keptBytes > most && !all.kept.empty()) {
        all.keptBytes -= all.kept.back()->image.sizeInBytes();
        all.kept.pop_back();
    }
}

void Keep(const PictureRef& picture) {
    Shelf& all = shelf();
    const auto there = std::ranges::find(all.kept, picture);
    if (there != all.kept.end()) {
        all.kept.splice(all.kept.begin(), all.kept, there);
        return;
    }
    all.kept.push_front(picture);
    all.keptBytes += picture->image.sizeInBytes();
    DropUntil(KeptBytes);
}

bool Fits(const QSize& size) {
    return size.width() <= PictureSideLimit && size.height() <= PictureSideLimit &&
           PixelsOf(size) <= PicturePixelLimit;
}

/// The canvas size in a GIF's header; invalid if the file is too short.
QSize CanvasOfGif(const fs::path& path) {
    QFile file(FileName(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray head = file.read(10);
    if (head.size() < 10) return {};
    const auto at = [&](int byte) { return int{qFromLittleEndian<quint16>(head.constData() + byte)}; };
    return {at(6), at(8)};
}

/// The size for which decoding takes memory; invalid if the header does not tell it. For a GIF, QImageReader
/// tells the size of the first frame, but the frame is painted on the whole canvas.
QSize SizeOf(QImageReader& reader, const fs::path& path) {
    const QSize size = reader.size();
    return reader.format() == "gif" ? size.expandedTo(CanvasOfGif(path)) : size;
}

QImage Decoded(QImageReader& reader) {
    QImage image;
    reader.read(&image);  // for a truncated file the image may have a part despite a failure
    if (image.isNull() || !Fits(image.size())) return {};
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

PictureRef Decode(const fs::path& path) {
    QImageReader reader(FileName(path));
    PrepareReader(reader);
    const QSize size = SizeOf(reader, path);
    if (!Fits(size)) return nullptr;
    const std::int64_t pixels = size.isValid() ? PixelsOf(size) : PicturePixelLimit;
    PictureMemory memory = PictureMemory::Take(pixels);
    if (!memory) return nullptr;
    QImage image = Decoded(reader);
    memory.Give();
    if (image.isNull()) return nullptr;
    memory = PictureMemory::Take(PixelsOf(image.size()));
    if (!memory) return nullptr;
    /// A picture with the memory reserved for it, so that both are freed together.
    struct Counted {
        Picture picture;
        PictureMemory memory;
    };
    auto counted = std::make_shared<Counted>(Counted{{std::move(image), path}, std::move(memory)});
    return PictureRef(counted, &counted->picture);
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

PictureRef LoadPicture(const fs::path& path) {
    Remember(path);
    Stamp stamp;
    if (!StampOf(path, stamp)) return nullptr;
    std::weak_ptr<const Picture>& known = shelf().known[stamp];
    PictureRef picture = known.lock();
    if (!picture) known = picture = Decode(path);
    if (picture) Keep(picture);
    return picture;
}

QImage LoadThumbnail(const fs::path& path, const QSize& most) {
    Stamp stamp;
    if (!StampOf(path, stamp)) return {};
    QImageReader reader(FileName(path));
    PrepareReader(reader);
    const QSize size = SizeOf(reader, path);
    if (!size.isValid() || !Fits(size) || PixelsOf(size) > ThumbnailPixelLimit) return {};
    const PictureMemory memory = PictureMemory::Take(PixelsOf(size));
    if (!memory) return {};
    if (size.width() > most.width() || size.height() > most.height())
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return Decoded(reader);
}

namespace {

bool HasFrames(const fs::path& path) {
    QImageReader reader(FileName(path));
    PrepareReader(reader);
    if (reader.format() != "gif" || !reader.supportsAnimation()) return false;
    const QSize size = SizeOf(reader, path);
    return size.isValid() && Fits(size) && reader.imageCount() > 1;
}

}  // namespace

std::int64_t PixelsOfGif(const fs::path& path) {
    QImageReader reader(FileName(path), "gif");
    const QSize size = SizeOf(reader, path);
    return size.isValid() && Fits(size) ? PixelsOf(size) : 0;
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
