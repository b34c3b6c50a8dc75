// SPDX-License-Identifier: MIT
// Converts the program's texts to Qt's.
#pragma once

#include <QString>
#include <string_view>

namespace ornavo {

/// From UTF-8; invalid bytes become the replacement character.
inline QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace ornavo
