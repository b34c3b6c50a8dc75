// SPDX-License-Identifier: MIT
#include "platform/png_bytes.h"

#include <zlib.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

#include "base/failure.h"

namespace ornavo {
namespace {

using ByteList = std::vector<std::uint8_t>;

constexpr std::string_view Signature = "\x89PNG\r\n\x1a\n";
constexpr int BlockBytes = 64;

/// What the fields of the format hold.
enum : std::uint8_t {
    BitsOfChannel = 8,
    PngRgb = 2,
    PngRgba = 6,
    Deflated = 0,
    AnyFilter = 0,
    NotInterlaced = 0
};
enum : std::uint8_t { NearestNeighbour = 4 };  // the filter of a row
enum : std::uint8_t { PerMetre = 1 };

void AddNumber(std::string& bytes, std::uint32_t number) {
    for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift);
}

void AddChunk(std::string& file, std::string_view name, std::string_view content) {
    AddNumber(file, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = file.size();
    file.append(name).append(content);
    const auto* const bytes = reinterpret_cast<const Bytef*>(file.data());
    AddNumber(file, static_cast<std::uint32_t>(crc32_z(0, bytes + begin, file.size() - begin)));
}

/// A zlib stream in which only runs are looked for.
class RunStream {
public:
    RunStream() {
        if (deflateInit2(&stream_, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS, MAX_MEM_LEVEL, Z_RLE) !=
            Z_OK)
            throw Failure(Failure::OutOfMemory, "PngBytesOf");
    }
    RunStream(const RunStream&) = delete;
    RunStream& operator=(const RunStream&) = delete;
    ~RunStream() { deflateEnd(&stream_); }
    void Add(ByteList& bytes, std::size_t count, int flush = Z_NO_FLUSH) {
        stream_.next_in = bytes.data();
        stream_.avail_in = static_cast<uInt>(count);
        do {
            stream_.next_out = part_.data();
            stream_.avail_out = static_cast<uInt>(part_.size());
            deflate(&stream_, flush);
            done_.append(reinterpret_cast<const char*>(part_.data()), part_.size() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }
    const std::string& End() {
        ByteList nothing;
        Add(nothing, 0, Z_FINISH);
        return done_;
    }

private:
    z_stream stream_ = {};
    std::array<Bytef, 1 << 14> part_;
    std::string done_;
};

/// A byte less the one of its neighbours that is nearest to left + upper - corner, for a block of bytes. A
/// block of fixed length into memory of its own, so that GCC vectorises it.
std::array<std::uint8_t, BlockBytes> Differences(const std::uint8_t* row, const std::uint8_t* above,
                                                 std::size_t pixelBytes) {
    std::array<std::uint8_t, BlockBytes> differences;
    const std::uint8_t *const before = row - pixelBytes, *const aboveBefore = above - pixelBytes;
    for (std::size_t i = 0; i < BlockBytes; ++i) {
        const auto left = static_cast<std::int16_t>(before[i]), upper = static_cast<std::int16_t>(above[i]),
                   corner = static_cast<std::int16_t>(aboveBefore[i]);
        const auto toLeft = static_cast<std::int16_t>(std::abs(upper - corner)),
                   toUpper = static_cast<std::int16_t>(std::abs(left - corner)),
                   toCorner = static_cast<std::int16_t>(std::abs(left + upper - 2 * corner));
        const std::int16_t ofTwo = toUpper <= toCorner ? upper : corner;
        const std::int16_t nearest = toLeft <= toUpper && toLeft <= toCorner ? left : ofTwo;
        differences[i] = static_cast<std::uint8_t>(row[i] - nearest);
    }
    return differences;
}

/// The rows as the format wants them, compressed.
std::string Compressed(const QImage& pixels) {
    const auto pixelBytes = static_cast<std::size_t>(pixels.depth() / 8);
    const std::size_t rowBytes = pixelBytes * static_cast<std::size_t>(pixels.width());
    const std::size_t blocks = (rowBytes + BlockBytes - 1) / BlockBytes;
    // A pixel of zeros stands before each row.
    ByteList row(pixelBytes + blocks * BlockBytes), above(row.size()), filtered(1 + blocks * BlockBytes);
    filtered[0] = NearestNeighbour;
    RunStream stream;
    for (int y = 0; y < pixels.height(); ++y) {
        std::memcpy(row.data() + pixelBytes, pixels.constScanLine(y), rowBytes);
        for (std::size_t at = 0; at < rowBytes; at += BlockBytes) {
            const auto part =
                Differences(row.data() + pixelBytes + at, above.data() + pixelBytes + at, pixelBytes);
            std::memcpy(filtered.data() + 1 + at, part.data(), part.size());
        }
        stream.Add(filtered, 1 + rowBytes);
        row.swap(above);
    }
    return stream.End();
}

}  // namespace

std::string PngBytesOf(const QImage& picture) {
    if (picture.isNull()) throw Failure(Failure::InvalidCall, "PngBytesOf", "There is no picture");
    const bool clear = picture.hasAlphaChannel();
    const QImage pixels = picture.convertToFormat(clear ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    if (pixels.isNull()) throw Failure(Failure::OutOfMemory, "PngBytesOf");
    std::string header, scale;
    for (const int side : {pixels.width(), pixels.height()})
        AddNumber(header, static_cast<std::uint32_t>(side));
    for (const std::uint8_t field :
         {BitsOfChannel, clear ? PngRgba : PngRgb, Deflated, AnyFilter, NotInterlaced})
        header += static_cast<char>(field);
    for (const int dots : {picture.dotsPerMeterX(), picture.dotsPerMeterY()})
        AddNumber(scale, static_cast<std::uint32_t>(dots));
    scale += static_cast<char>(PerMetre);
    std::string file(Signature);
    AddChunk(file, "IHDR", header);
    AddChunk(file, "pHYs", scale);
    AddChunk(file, "IDAT", Compressed(pixels));
    AddChunk(file, "IEND", "");
    return file;
}

}  // namespace ornavo
