// SPDX-License-Identifier: MIT
#include "cli/picture_file.h"

#include <QFile>
#include <algorithm>

#include "cli/open_skin.h"
#include "platform/form.h"
#include "platform/png_bytes.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

std::string Words(const Size& size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

}  // namespace

Size SizeToDraw(const Arguments& arguments) {
    const Size whole = NamedSize(arguments, MostWindowPixels);
    if (whole.width < 1 || whole.height < 1)
        throw Failure(Failure::InvalidCall, "Render", "The skin has no size; give one with --size.");
    const Size size = {std::min(whole.width, MostWindowPixels), std::min(whole.height, MostWindowPixels)};
    if (size != whole) Tell("the skin is " + Words(whole) + " pixels; it is composed at " + Words(size));
    return size;
}

void WritePng(const QImage& picture, const std::string& name) {
    WriteText(PngBytesOf(picture), name);
}

void WriteText(const std::string& text, const std::string& name) {
    QFile file(Shown(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), std::ssize(text)) < 0 || !file.flush())
        throw Failure(Failure::PathError, "Output", name + " can't be written.");
}

}  // namespace ornavo
