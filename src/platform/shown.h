// SPDX-License-Identifier: MIT
// Our texts as Qt's.
#pragma once

#include <QString>
#include <string_view>

namespace ornavo {

/// Of UTF-8, which all texts are inside; what is none becomes the replacement character.
inline QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace ornavo
