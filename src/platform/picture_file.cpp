// SPDX-License-Identifier: MIT
#include "platform/picture_file.h"

#include <QFile>
#include <QtEndian>

#include "base/paths.h"
#include "platform/picture_limits.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int DecoderMegabytes = 256;  // enough for PicturePixelLimit at 4 bytes

/// The canvas size in a GIF's header; invalid if the file is too short.
QSize CanvasOfGif(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray head = file.read(10);
    if (head.size() < 10) return {};
    const auto at = [&](int byte) { return int{qFromLittleEndian<quint16>(head.constData() + byte)}; };
    return {at(6), at(8)};
}

}  // namespace

PictureFile::PictureFile(const std::filesystem::path& path, const QByteArray& format)
    : reader_(Shown(ToText(path)), format) {
    static const bool once = (QImageReader::setAllocationLimit(DecoderMegabytes), true);
    static_cast<void>(once);
    reader_.setDecideFormatFromContent(format.isEmpty());
    reader_.setAutoTransform(false);
}

QSize PictureFile::Size() {
    const QSize size = reader_.size();
    return reader_.format() == "gif" ? size.expandedTo(CanvasOfGif(reader_.fileName())) : size;
}

QImage PictureFile::Decoded() {
    QImage image;
    reader_.read(&image);  // for a truncated file the image may have a part despite a failure
    if (image.isNull() || !FitsPicture(image.size())) return {};
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

bool FitsPicture(const QSize& size) {
    return size.width() <= PictureSideLimit && size.height() <= PictureSideLimit &&
           PixelsOf(size) <= PicturePixelLimit;
}

std::int64_t PixelsOf(const QSize& size) {
    return std::int64_t{size.width()} * size.height();
}

}  // namespace ornavo
