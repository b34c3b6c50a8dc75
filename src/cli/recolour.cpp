// SPDX-License-Identifier: MIT
// A picture of any kind that can be read gets one hue and saturation and becomes a BMP or JPEG file.
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <charconv>
#include <cstdio>

#include "base/files.h"
#include "base/paths.h"
#include "cli/commands.h"
#include "pixels/ccolourise.h"
#include "platform/pictures.h"

namespace ornavo {
namespace {

/// Qt's scale is 0 to 100. That of the editor ends at 127, which is this one.
constexpr int BestQuality = 100;

int SettingOf(const Arguments& arguments, const std::string& name) {
    const std::string text = arguments.Need(name);
    int value = -1;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size() || value < 0 || value > 255)
        throw UsageError("--" + name + " takes a whole number, 0 to 255");
    return value;
}

bool IsSeeThrough(const QImage& picture) {
    if (!picture.hasAlphaChannel()) return false;
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            if (qAlpha(row[x]) < 255) return true;
    }
    return false;
}

QImage OnWhite(const QImage& picture) {
    QImage flat(picture.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, picture);
    return flat;
}

cDIBSection SourceOf(const std::string& name) {
    if (!FileExists(name)) throw Failure(53, "Recolour", name + " not found!");
    const PictureRef picture = LoadPicture(OnDisk(name));
    if (!picture) throw Failure(5, "Recolour", name + " is no picture that can be read.");
    const bool seeThrough = IsSeeThrough(picture->image);
    if (seeThrough)
        std::fprintf(stderr, "ornavo-cli: %s is transparent in places; they are put on white\n",
                     name.c_str());
    const QImage flat =
        seeThrough ? OnWhite(picture->image) : picture->image.convertToFormat(QImage::Format_RGB32);
    cDIBSection source;
    if (flat.isNull() ||
        !source.CreateFromPicture(flat.constBits(), flat.width(), flat.height(), flat.bytesPerLine()))
        throw Failure(7, "Recolour", "There is no memory for " + name);
    return source;
}

void SaveJpeg(const cDIBSection& picture, const std::string& name) {
    const QImage upsideDown(picture.DIBSectionBitsPtr(), picture.Width(), picture.Height(),
                            picture.BytesPerScanLine(), QImage::Format_BGR888);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!upsideDown.mirrored().save(&bytes, "JPG", BestQuality))
        throw Failure(5, "Recolour", name + " can't be a JPEG file of this size.");
    ReplaceFile(OnDisk(name), bytes.data().toStdString());
}

}  // namespace

int Recolour(const Arguments& arguments) {
    const std::string kind = GetExtensionName(arguments.target);
    if (kind != "bmp" && kind != "jpg") throw UsageError("OUT ends in .bmp or .jpg");
    cColourise engine;
    engine.Hue = SettingOf(arguments, "hue");
    engine.Saturation = SettingOf(arguments, "saturation");
    cDIBSection picture = SourceOf(arguments.skin);
    engine.Process(picture, picture);
    if (kind == "bmp")
        picture.SavePicture(OnDisk(arguments.target));
    else
        SaveJpeg(picture, arguments.target);
    return 0;
}

}  // namespace ornavo
