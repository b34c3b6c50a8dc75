// SPDX-License-Identifier: MIT
#include "platform/picture_difference.h"

#include <cstdlib>

namespace ornavo {
namespace {

bool IsChanged(QRgb before, QRgb after, int tolerance) {
    const auto differs = [&](int one, int two) { return std::abs(one - two) > tolerance; };
    return differs(qRed(before), qRed(after)) || differs(qGreen(before), qGreen(after)) ||
           differs(qBlue(before), qBlue(after)) || differs(qAlpha(before), qAlpha(after));
}

QRgb Pale(QRgb pixel) {
    const int grey = 192 + qGray(pixel) / 4;
    return qRgb(grey, grey, grey);
}

}  // namespace

PictureDifference Compare(const QImage& before, const QImage& after, int tolerance) {
    const QImage first = before.convertToFormat(QImage::Format_ARGB32);
    const QImage second = after.convertToFormat(QImage::Format_ARGB32);
    const QSize size = first.size().expandedTo(second.size());
    PictureDifference difference{QImage(size, QImage::Format_RGB32)};
    qint64 changed = 0;
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(difference.picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const bool isInBoth = first.valid(x, y) && second.valid(x, y);
            const bool isSame = isInBoth && !IsChanged(first.pixel(x, y), second.pixel(x, y), tolerance);
            changed += isSame ? 0 : 1;
            row[x] = isSame ? Pale(second.pixel(x, y)) : qRgb(220, 0, 0);
        }
    }
    if (!size.isEmpty())
        difference.share = static_cast<double>(changed) / (static_cast<double>(size.width()) * size.height());
    return difference;
}

}  // namespace ornavo
