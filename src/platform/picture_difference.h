// SPDX-License-Identifier: MIT
// Two pictures pixel by pixel.
#pragma once

#include <QImage>

namespace ornavo {

struct PictureDifference {
    QImage picture;    // the second one in pale grey, with the changed pixels in red
    double share = 0;  // of the changed pixels, 0 to 1
};

/// A pixel is changed if red, green, blue or opacity differs by more than `tolerance` (0 to 255), or if only
/// one of the pictures has it.
PictureDifference Compare(const QImage& before, const QImage& after, int tolerance);

}  // namespace ornavo
