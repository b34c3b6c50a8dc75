// SPDX-License-Identifier: MIT
// A picture of 24 bits a pixel whose bytes can be reached: blue, green, red, the bottom row first, each row
// padded to a multiple of four bytes. It resamples itself and writes itself as a BMP file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace ornavo {

class cDIBSection {
public:
    /// What fits into the sizes of a BMP file with its headers.
    static constexpr std::int64_t ByteLimit = 0x7fffffff - 58;

    /// Frees the old picture and takes memory for a black one. False, and no picture, if a side is below one
    /// pixel, the bytes pass ByteLimit (found before memory is taken), or there is no memory.
    bool Create(int Width, int Height);
    /// The same, filled from 32-bit words 0x??RRGGBB in the machine's byte order, the top row first,
    /// `bytesPerRow` from the start of one row to that of the next.
    bool CreateFromPicture(const std::uint8_t* words, int Width, int Height, std::ptrdiff_t bytesPerRow);
    void ClearUp();

    int Width() const { return width_; }  // pixels; 0 without a picture
    int Height() const { return height_; }
    int BytesPerScanLine() const { return stride_; }
    std::uint8_t* DIBSectionBitsPtr() { return bits_.data(); }
    const std::uint8_t* DIBSectionBitsPtr() const { return bits_.data(); }
    std::uint8_t* ScanLine(int y) { return bits_.data() + std::ptrdiff_t{y} * stride_; }  // 0 at the bottom
    const std::uint8_t* ScanLine(int y) const { return bits_.data() + std::ptrdiff_t{y} * stride_; }

    /// The picture in another size, each pixel mixed from the four around its place. Failure 5 without a
    /// picture, 7 where Create refuses the new size.
    cDIBSection Resample(int NewHeight, int NewWidth) const;
    /// Noise in all pixels; one seed, one noise.
    void RandomiseBits(std::uint32_t seed);
    /// A BMP file of 58 bytes of headers and then the bits; whole when the call returns, and the old file
    /// untouched when it throws. Failure 5 without a picture, else that of ReplaceFile, with this class as
    /// source.
    void SavePicture(const std::filesystem::path& FileName) const;

private:
    int width_ = 0;
    int height_ = 0;
    int stride_ = 0;
    std::vector<std::uint8_t> bits_;
};

}  // namespace ornavo
