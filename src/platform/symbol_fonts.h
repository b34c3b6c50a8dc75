// SPDX-License-Identifier: MIT
// The symbol fonts of old desktops: which Unicode character each of their codes shows.
#pragma once

#include <QString>
#include <string_view>

namespace ornavo {

/// Whether this is the name of a known symbol font, without regard to case.
bool IsSymbolFont(std::string_view name);
/// Replaces each character by its symbol. A character's code is its byte in Windows-1252, or the low byte of
/// U+F020 to U+F0FF. A character without a symbol is kept.
QString SymbolText(std::string_view font, const QString& text);
/// The symbol of a code, 0x21 to 0xFF; 0 if the font has none.
char32_t SymbolOf(std::string_view font, int code);

}  // namespace ornavo
