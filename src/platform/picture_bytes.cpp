// SPDX-License-Identifier: MIT
#include "platform/picture_bytes.h"

#include <QBuffer>
#include <QPainter>

#include "base/failure.h"

namespace ornavo {
namespace {

/// The jukebox's quality scale ends at 127, the encoder's at 100. Only the best quality is used.
constexpr int BestQuality = 127, ScaleEnd = 127, EncoderScaleEnd = 100;

constexpr int EncoderQuality(int quality) {
    return quality * EncoderScaleEnd / ScaleEnd;
}

}  // namespace

bool IsSeeThrough(const QImage& picture) {
    if (!picture.hasAlphaChannel()) return false;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) < 255; }))
            return true;
    }
    return false;
}

QImage Flattened(const QImage& picture, const QColor& ground) {
    if (!IsSeeThrough(picture)) return picture.convertToFormat(QImage::Format_RGB32);
    QImage flat(picture.size(), QImage::Format_RGB32);
    flat.fill(ground);
    QPainter(&flat).drawImage(0, 0, picture);
    return flat;
}

std::string FileBytesOf(const QImage& picture, FileKind kind) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const bool jpeg = kind == FileKind::Jpeg;
    const bool written = !picture.isNull() && buffer.open(QIODevice::WriteOnly) &&
                         picture.save(&buffer, jpeg ? "JPG" : "BMP", jpeg ? EncoderQuality(BestQuality) : -1);
    if (!written)
        throw Failure(Failure::InvalidCall, "FileBytesOf",
                      jpeg ? "There is no picture, or none of a size that a JPEG file can hold"
                           : "There is no picture, or none of a size that a BMP file can hold");
    return bytes.toStdString();
}

}  // namespace ornavo
