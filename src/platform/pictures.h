// SPDX-License-Identifier: MIT
// Reads picture files: each is decoded once, within limits, and shared.
#pragma once

#include <QImage>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <utility>

namespace ornavo {

inline constexpr std::int64_t PicturePixelLimit = 64'000'000;              // pixels of one picture
inline constexpr int PictureSideLimit = 16'384;                            // width and height in pixels
inline constexpr std::int64_t PictureByteLimit = std::int64_t{512} << 20;  // all pictures in use together
inline constexpr std::int64_t ThumbnailPixelLimit = 16'000'000;            // pixels of one picture

/// A decoded picture. LoadPicture returns the same object again as long as the file's path, size and time are
/// unchanged and the object is in use or in the cache.
struct Picture {
    QImage image;                // as decoded, never null
    std::filesystem::path path;  // the file it was read from
    QImage fine = {};  // with twice the pixels each way, for high-dpi screens; null if there is none
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

/// Null for a file that is not a picture, is too large (refused before memory is taken) or cannot be read.
PictureRef LoadPicture(const std::filesystem::path& path);
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
