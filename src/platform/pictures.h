// SPDX-License-Identifier: MIT
// Picture files become pixels: decoded once, within stated limits, and shared.
#pragma once

#include <QImage>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <utility>

namespace ornavo {

inline constexpr std::int64_t PicturePixelLimit = 64'000'000;              // of one picture
inline constexpr int PictureSideLimit = 16'384;                            // pixels
inline constexpr std::int64_t PictureByteLimit = std::int64_t{512} << 20;  // of all pictures in use together
inline constexpr std::int64_t ThumbnailPixelLimit = 16'000'000;            // of one picture

/// A decoded picture. Two Pictures are the same when they are the same object: LoadPicture gives the same one
/// again while file, size and time are unchanged and somebody holds it or the cache keeps it.
struct Picture {
    QImage image;                // as decoded, never null
    std::filesystem::path path;  // where it came from
    QImage fine = {};  // the same with twice the pixels each way, for a fine screen; null without one
};
using PictureRef = std::shared_ptr<const Picture>;

/// A share of PictureByteLimit, held while pixels are in use and given back with it.
class PictureMemory {
public:
    PictureMemory() = default;
    PictureMemory(PictureMemory&& other) noexcept : bytes_(std::exchange(other.bytes_, 0)) {}
    PictureMemory& operator=(PictureMemory&& other) noexcept {
        std::swap(bytes_, other.bytes_);
        return *this;
    }
    ~PictureMemory() { Give(); }
    /// For so many pixels; empty where one of the limits stands against it.
    static PictureMemory Take(std::int64_t pixels);
    void Give();
    explicit operator bool() const { return bytes_ > 0; }

private:
    std::int64_t bytes_ = 0;
};

/// Null for what is no picture, is too large (refused before memory is taken) or can't be read.
PictureRef LoadPicture(const std::filesystem::path& path);
/// The first frame of a picture file, shrunk to fit into the size, never enlarged. Null as above, and for
/// more than ThumbnailPixelLimit pixels, which take too long.
QImage LoadThumbnail(const std::filesystem::path& path, const QSize& most);
/// Whether the file is a GIF of more than one frame.
bool IsAnimatedGIF(const std::filesystem::path& path);
/// Of a GIF's canvas, which each of its frames is painted on; 0 beyond the limits of one picture.
std::int64_t PixelsOfGif(const std::filesystem::path& path);
/// Whether a picture that was asked for, or its folder, has been written to since. Then all is to be loaded
/// anew: what was asked for before is forgotten.
bool PicturesChanged();

}  // namespace ornavo
