// SPDX-License-Identifier: MIT
// A picture loses its transparency, and becomes the bytes of a file.
#pragma once

#include <QColor>
#include <QImage>
#include <string>

namespace ornavo {

/// Whether any pixel of a picture in a 32-bit format is not opaque.
bool IsSeeThrough(const QImage& picture);
/// The picture on a ground of that colour, 32 bits a pixel, opaque.
QImage Flattened(const QImage& picture, const QColor& ground);

enum class FileKind { Bmp, Jpeg };
/// A BMP of 24 bits a pixel behind 54 bytes of headers, or a JPEG of the best quality. Failure 5 for no
/// picture, and for one that the file can't hold.
std::string FileBytesOf(const QImage& picture, FileKind kind);

}  // namespace ornavo
