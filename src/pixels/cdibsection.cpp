// SPDX-License-Identifier: MIT
#include "pixels/cdibsection.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <random>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/files.h"

namespace ornavo {

namespace {

constexpr const char* SourceName = "Ornavo.cDIBSection";
constexpr int FileHeaderBytes = 14;
constexpr int InfoHeaderBytes = 40;
constexpr int BytesBeforeBits = FileHeaderBytes + InfoHeaderBytes + 4;  // 4: an unused colour of a palette

Failure NoPicture() {
    return Failure(Failure::InvalidCall, SourceName, "There is no picture");
}

/// A buffer of little-endian numbers and bytes.
class Bytes {
public:
    explicit Bytes(std::size_t room) { bytes_.reserve(room); }
    Bytes& Short(std::uint32_t value) { return Put(value, 2); }
    Bytes& Long(std::uint32_t value) { return Put(value, 4); }
    Bytes& All(const std::uint8_t* bytes, std::size_t count) {
        bytes_.append(reinterpret_cast<const char*>(bytes), count);
        return *this;
    }
    const std::string& Text() const { return bytes_; }

private:
    Bytes& Put(std::uint32_t value, int count) {
        for (; count > 0; --count, value >>= 8) bytes_ += static_cast<char>(value & 0xff);
        return *this;
    }
    std::string bytes_;
};

/// The position of a new row or column between two old ones. At the edge the last one counts twice.
struct Between {
    Between(int place, float scale, int size)
        : first(static_cast<int>(place * double{scale})),
          second(std::min(first + 1, size - 1)),
          rest(place * double{scale} - first) {}
    int first, second;
    double rest;
};

float ScaleOf(int size, int newSize) {
    return static_cast<float>(double(size - 1) / newSize);
}

double Mixed(double first, double second, double rest) {
    return std::nearbyint((1 - rest) * first + rest * second);
}

std::uint8_t MixedChannel(const std::uint8_t* upper, const std::uint8_t* lower, const Between& x, double dy,
                          int channel) {
    const int left = x.first * 3 + channel, right = x.second * 3 + channel;
    const double value =
        Mixed(Mixed(upper[left], lower[left], dy), Mixed(upper[right], lower[right], dy), x.rest);
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

}  // namespace

bool cDIBSection::Create(int Width, int Height) {
    ClearUp();
    if (Width < 1 || Height < 1) return false;
    const std::int64_t stride = (std::int64_t{Width} * 3 + 3) & ~std::int64_t{3};
    if (stride > ByteLimit / Height) return false;
    try {
        bits_.resize(static_cast<std::size_t>(stride * Height));
    } catch (const std::bad_alloc&) {
        return false;
    }
    width_ = Width;
    height_ = Height;
    stride_ = static_cast<int>(stride);
    return true;
}

bool cDIBSection::CreateFromPicture(const std::uint8_t* words, int Width, int Height,
                                    std::ptrdiff_t bytesPerRow) {
    if (!Create(Width, Height)) return false;
    for (int y = 0; y < Height; ++y) {
        const std::uint8_t* from = words + (Height - 1 - y) * bytesPerRow;
        std::uint8_t* to = ScanLine(y);
        for (int x = 0; x < Width; ++x, from += 4, to += 3) {
            std::uint32_t word;
            std::memcpy(&word, from, sizeof word);
            for (int channel = 0; channel < 3; ++channel)
                to[channel] = static_cast<std::uint8_t>(word >> 8 * channel);
        }
    }
    return true;
}

void cDIBSection::ClearUp() {
    width_ = height_ = stride_ = 0;
    std::vector<std::uint8_t>().swap(bits_);  // clear() alone would keep the memory
}

cDIBSection cDIBSection::Resample(int NewHeight, int NewWidth) const {
    if (bits_.empty()) throw NoPicture();
    if (NewHeight == height_ && NewWidth == width_) return *this;
    cDIBSection result;
    if (!result.Create(NewWidth, NewHeight))
        throw Failure(Failure::OutOfMemory, SourceName, "A picture of that size can't be made");
    const float xScale = ScaleOf(width_, NewWidth), yScale = ScaleOf(height_, NewHeight);
    for (int y = 0; y < NewHeight; ++y) {
        const Between row(y, yScale, height_);
        const std::uint8_t* upper = ScanLine(row.first);
        const std::uint8_t* lower = ScanLine(row.second);
        std::uint8_t* to = result.ScanLine(y);
        for (int x = 0; x < NewWidth; ++x) {
            const Between column(x, xScale, width_);
            for (int channel = 0; channel < 3; ++channel)
                *to++ = MixedChannel(upper, lower, column, row.rest, channel);
        }
    }
    return result;
}

void cDIBSection::RandomiseBits(std::uint32_t seed) {
    std::mt19937 dice(seed);
    for (int y = 0; y < height_; ++y)
        std::generate_n(ScanLine(y), width_ * 3, [&] { return static_cast<std::uint8_t>(dice() >> 24); });
}

void cDIBSection::SavePicture(const std::filesystem::path& FileName) const {
    if (bits_.empty()) throw NoPicture();
    const auto size = static_cast<std::uint32_t>(bits_.size());
    constexpr std::uint32_t Mark = 'B' | 'M' << 8, Planes = 1, BitsOfPixel = 24, Uncompressed = 0;
    Bytes bytes(BytesBeforeBits + bits_.size());
    bytes.Short(Mark).Long(size + BytesBeforeBits).Long(0).Long(BytesBeforeBits);
    bytes.Long(InfoHeaderBytes).Long(static_cast<std::uint32_t>(width_));
    bytes.Long(static_cast<std::uint32_t>(height_)).Short(Planes).Short(BitsOfPixel).Long(Uncompressed);
    bytes.Long(size).Long(0).Long(0).Long(0).Long(0);  // no resolution, no palette
    bytes.Long(0).All(bits_.data(), bits_.size());
    try {
        ReplaceFile(FileName, bytes.Text());
    } catch (const Failure& failure) {
        throw Failure(failure.number(), SourceName, failure.description());
    }
}

}  // namespace ornavo
