// SPDX-License-Identifier: MIT
// A 24-bit picture whose bytes are accessible: blue, green, red, the bottom row first, each row padded to a
// multiple of four bytes. It resamples itself and writes itself as a BMP file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace ornavo {

/// A 24-bit picture in memory. Until Create it has no pixels.
class cDIBSection {
public:
    /// Bytes of pixels that the size fields of a BMP file can hold beside its headers.
    static constexpr std::int64_t ByteLimit = 0x7fffffff - 58;

    /// Replaces the picture with a black one of this size in pixels. False, and no picture, if a side is less
    /// than one pixel, the pixels need more than ByteLimit (checked before memory is taken), or memory is
    /// short.
    bool Create(int Width, int Height);
    /// As Create, filled from 32-bit words 0x??RRGGBB in the machine's byte order, the top row first.
    /// `bytesPerRow` is the distance between the starts of two rows.
    bool CreateFromPicture(const std::uint8_t* words, int Width, int Height, std::ptrdiff_t bytesPerRow);
    void ClearUp();

    int Width() const { return width_; }  // pixels; 0 without a picture
    int Height() const { return height_; }
    int BytesPerScanLine() const { return stride_; }
    std::uint8_t* DIBSectionBitsPtr() { return bits_.data(); }
    const std::uint8_t* DIBSectionBitsPtr() const { return bits_.data(); }
    std::uint8_t* ScanLine(int y) { return bits_.data() + std::ptrdiff_t{y} * stride_; }  // 0 at the bottom
    const std::uint8_t* ScanLine(int y) const { return bits_.data() + std::ptrdiff_t{y} * stride_; }

    /// The picture in another size in pixels; each new pixel is mixed from the four old ones nearest to its
    /// place. Failure 5 without a picture, 7 if Create refuses the size.
    cDIBSection Resample(int NewHeight, int NewWidth) const;
    /// Fills all pixels with noise; the same seed gives the same noise.
    void RandomiseBits(std::uint32_t seed);
    /// Writes a BMP file of 58 bytes of headers and the pixels, whole or not at all; an old file stays when
    /// it throws. Failure 5 without a picture, otherwise that of ReplaceFile with this class as source.
    void SavePicture(const std::filesystem::path& FileName) const;

private:
    int width_ = 0;
    int height_ = 0;
    int stride_ = 0;
    std::vector<std::uint8_t> bits_;
};

}  // namespace ornavo
