// SPDX-License-Identifier: MIT
// Reads picture files: each is decoded once, within limits, and shared.
#pragma once

#include <QImage>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/picture_limits.h"

namespace ornavo {

/// A picture. LoadPicture returns the same object again as long as the file's path, size and time are
/// unchanged and the object is in use or in the cache.
class Picture {
public:
    /// `finer` has twice the pixels each way, for high-dpi screens; null if there is none.
    explicit Picture(QImage image, QImage finer = {})
        : size(image.size()), fine(std::move(finer)), image_(std::move(image)) {}
    /// A picture that is decoded at its first use.
    Picture(const QSize& pixels, std::function<QImage()> decode) : size(pixels), decode_(std::move(decode)) {}
    /// As decoded; null only if it was to be decoded later and could not be.
    const QImage& image() const {
        if (decode_) image_ = std::exchange(decode_, nullptr)();
        return image_;
    }
    bool IsDecoded() const { return !decode_; }
    QSize size;
    QImage fine;

private:
    mutable std::function<QImage()> decode_;
    mutable QImage image_;
};
using PictureRef = std::shared_ptr<const Picture>;

/// Reserves a part of PictureByteLimit; the destructor gives it back.
class PictureMemory {
public:
    PictureMemory() = default;
    PictureMemory(PictureMemory&& other) noexcept : bytes_(std::exchange(other.bytes_, 0)) {}
    PictureMemory& operator=(PictureMemory&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        return *this;
    }
    ~PictureMemory() { Give(); }
    /// Reserves 4 bytes for each of so many pixels. Empty if that exceeds PicturePixelLimit or
    /// PictureByteLimit.
    static PictureMemory Take(std::int64_t pixels);
    void Give();
    explicit operator bool() const { return bytes_ > 0; }

private:
    std::int64_t bytes_ = 0;
};

class PictureWorker;

/// While one lives, a second core decodes files, the last first, for a caller of LoadPicture who begins with
/// the first. What LoadPicture gives is the same as without it.
class PicturesAhead {
public:
    using Files = std::function<std::vector<std::filesystem::path>()>;
    /// `files` is called at most once, when the first picture must be decoded.
    explicit PicturesAhead(Files files);
    ~PicturesAhead();
    PicturesAhead(const PicturesAhead&) = delete;
    PicturesAhead& operator=(const PicturesAhead&) = delete;
    /// The picture of the file, if it is decoded already.
    std::optional<QImage> Take(const std::filesystem::path& file);

private:
    void Begin();
    Files files_;  // empty once they are begun
    std::unique_ptr<PictureWorker> worker_;
};

/// Null for a file that is not a picture, is too large (refused before memory is taken) or cannot be read.
PictureRef LoadPicture(const std::filesystem::path& path);
/// The same for a picture that may never be shown: its header is read and its memory reserved, but it is
/// decoded at its first use.
PictureRef LoadPictureForLater(const std::filesystem::path& path);
/// The first frame of a picture file, shrunk to fit into `most` (pixels) but never enlarged. Null as for
/// LoadPicture, and for more than ThumbnailPixelLimit pixels, which would take too long.
QImage LoadThumbnail(const std::filesystem::path& path, const QSize& most);
/// Whether the file is a GIF of more than one frame.
bool IsAnimatedGIF(const std::filesystem::path& path);
/// The pixels of the GIF's canvas, on which each frame is painted; 0 if it exceeds the limits of one picture.
std::int64_t PixelsOfGif(const std::filesystem::path& path);
/// Whether a picture loaded since the last change, or its folder, has been written to. If so, the caller must
/// load all pictures again, and the list of watched files starts empty.
bool PicturesChanged();

}  // namespace ornavo
