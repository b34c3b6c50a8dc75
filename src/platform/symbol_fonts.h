// SPDX-License-Identifier: MIT
// The symbol fonts of old desktops as data: which character of Unicode each of their codes shows.
#pragma once

#include <QString>
#include <string_view>

namespace ornavo {

/// Whether the name, without regard to case, is that of a font whose codes are symbols.
bool IsSymbolFont(std::string_view name);
/// Each character as its symbol. The code of a character is its byte in Windows-1252, or the low byte of
/// U+F020 to U+F0FF. What has no symbol stays as it is.
QString SymbolText(std::string_view font, const QString& text);
/// The symbol of one code, 0x21 to 0xFF; 0 where the font has none.
char32_t SymbolOf(std::string_view font, int code);

}  // namespace ornavo
