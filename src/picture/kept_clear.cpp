// SPDX-License-Identifier: MIT
#include "picture/kept_clear.h"

#include <QColor>

#include "platform/control.h"

namespace ornavo {

KeptClear::KeptClear(const dbLayoutElement& element, const QImage& picture, const cDIBSection& flat)
    : isTopLeft_(element.UseTopLeftTransparency) {
    const bool isColour = TranslateColor(element.TransparentColor) >= 0;
    if (!element.UseTransparency || (!isTopLeft_ && !isColour)) return;
    const QImage words = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    pixels_ = ClearPixels(words.constBits(), words.width(), words.height(), words.bytesPerLine());
    if (isTopLeft_) return;
    given_ = ScreenColour(element.TransparentColor).rgb() & RGB_MASK;
    pixels_.AddColour(flat, given_);
}

void KeptClear::Paint(cDIBSection& picture) const {
    if (!pixels_.Any()) return;
    if (!isTopLeft_)
        pixels_.Paint(picture, given_);
    else
        pixels_.Paint(picture, pixels_.AtTopLeft() ? pixels_.UnusedColour(picture) : TopLeftColour(picture));
}

std::string KeptClear::Told() const {
    if (!pixels_.Any()) return "";
    if (!isTopLeft_)
        return "What is clear has the element's transparent color, " +
               QColor::fromRgb(given_).name().toStdString();
    return pixels_.AtTopLeft() ? "What is clear, the top left pixel too, has a color that is nowhere else"
                               : "What is clear has the color of the top left pixel";
}

}  // namespace ornavo
