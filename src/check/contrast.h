// SPDX-License-Identifier: MIT
// How well a colour stands out from others.
#pragma once

#include <QRgb>
#include <vector>

namespace ornavo {

/// The contrast of two colours by their relative luminance, 1 to 21; the order doesn't matter.
double ContrastOf(QRgb one, QRgb other);

/// The contrast that a tenth of the grounds falls below; there must be one.
double ContrastOf(QRgb text, const std::vector<QRgb>& grounds);

}  // namespace ornavo
