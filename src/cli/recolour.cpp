// SPDX-License-Identifier: MIT
// Recolours a picture of any readable kind and writes it as a BMP or JPEG file.
#include <QImage>
#include <charconv>
#include <cstdio>

#include "base/files.h"
#include "base/lookup.h"
#include "base/paths.h"
#include "cli/commands.h"
#include "pixels/ccolourise.h"
#include "platform/picture_bytes.h"
#include "platform/pictures.h"

namespace ornavo {
namespace {

int SettingOf(const Arguments& arguments, const std::string& name) {
    const std::string text = arguments.Need(name);
    int value = -1;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size() || value < 0 || value > 255)
        throw UsageError("--" + name + " takes a whole number, 0 to 255");
    return value;
}

cDIBSection SourceOf(const std::string& name) {
    if (!FileExists(name)) throw Failure(Failure::FileNotFound, "Recolour", name + " not found!");
    const PictureRef picture = LoadPicture(OnDisk(name));
    if (!picture) throw Failure(Failure::InvalidCall, "Recolour", name + " is no picture that can be read.");
    if (IsSeeThrough(picture->image()))
        std::fprintf(stderr, "ornavo-cli: %s is transparent in places; they are put on white\n",
                     name.c_str());
    const QImage flat = Flattened(picture->image(), Qt::white);
    cDIBSection source;
    if (flat.isNull() ||
        !source.CreateFromPicture(flat.constBits(), flat.width(), flat.height(), flat.bytesPerLine()))
        throw Failure(Failure::OutOfMemory, "Recolour", "There is no memory for " + name);
    return source;
}

void SaveJpeg(const cDIBSection& picture, const std::string& name) {
    const QImage upsideDown(picture.DIBSectionBitsPtr(), picture.Width(), picture.Height(),
                            picture.BytesPerScanLine(), QImage::Format_BGR888);
    ReplaceFile(OnDisk(name), FileBytesOf(upsideDown.mirrored(), FileKind::Jpeg));
}

}  // namespace

int Recolour(const Arguments& arguments) {
    const std::string &in = arguments.operands[0], &out = arguments.operands[1];
    const std::string kind = GetExtensionName(out);
    if (kind != "bmp" && kind != "jpg") throw UsageError("OUT ends in .bmp or .jpg");
    cColourise engine;
    engine.Hue = SettingOf(arguments, "hue");
    engine.Saturation = SettingOf(arguments, "saturation");
    cDIBSection picture = SourceOf(in);
    engine.Process(picture, picture);
    if (kind == "bmp")
        picture.SavePicture(OnDisk(out));
    else
        SaveJpeg(picture, out);
    return 0;
}

}  // namespace ornavo
