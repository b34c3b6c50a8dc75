// SPDX-License-Identifier: MIT
// Decodes one picture file, within the limits of one picture.
#pragma once

#include <QImage>
#include <QImageReader>
#include <cstdint>
#include <filesystem>

namespace ornavo {

/// A picture file. It shares nothing, so that any thread may read it.
class PictureFile {
public:
    explicit PictureFile(const std::filesystem::path& path, const QByteArray& format = {});
    /// The size for which decoding takes memory; invalid if the header does not tell it. For a GIF, it is
    /// that of the canvas on which each frame is painted.
    QSize Size();
    /// The first frame as RGB32 or premultiplied ARGB32. Null if it is no picture or too large.
    QImage Decoded();
    QImageReader& reader() { return reader_; }

private:
    QImageReader reader_;
};

/// Whether one picture may have this size.
bool FitsPicture(const QSize& size);
std::int64_t PixelsOf(const QSize& size);

}  // namespace ornavo
