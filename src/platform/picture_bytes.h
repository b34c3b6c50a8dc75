// SPDX-License-Identifier: MIT
// Removes the transparency of a picture, and encodes a picture as a file.
#pragma once

#include <QColor>
#include <QImage>
#include <string>

namespace ornavo {

/// Whether a pixel of the picture, which has a 32-bit format, is not opaque.
bool IsSeeThrough(const QImage& picture);
/// The picture on a background of this colour; 32 bits a pixel, opaque.
QImage Flattened(const QImage& picture, const QColor& ground);

enum class FileKind { Bmp, Jpeg };
/// The bytes of a BMP file with 24 bits a pixel and 54 bytes of headers, or of a JPEG file of the best
/// quality. Failure 5 without a picture or if the file format cannot hold it.
std::string FileBytesOf(const QImage& picture, FileKind kind);

}  // namespace ornavo
