// SPDX-License-Identifier: MIT
// Text is UTF-8 inside the program and Windows-1252 in the skin file: comparing, trimming, converting.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ornavo {

bool EqualText(std::string_view one, std::string_view two);  // without regard to case
std::size_t HashText(std::string_view text);                 // equal for texts that EqualText takes as equal
std::string LowerText(std::string_view text);                // all letters that Windows-1252 has
std::string_view TrimBlanks(std::string_view text);          // removes blanks (0x20) at both ends
bool ContainsSeparator(std::string_view text);               // "\" or "/"
std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);

/// Windows-1252 bytes to UTF-8. The five undefined bytes become U+0081, U+008D, U+008F, U+0090, U+009D.
std::string FromFileBytes(std::string_view bytes);
/// UTF-8 to Windows-1252, one byte per character. A character that it does not have becomes "?".
std::string ToFileBytes(std::string_view text);
/// Whether Windows-1252 has every character of the text.
bool FitsFile(std::string_view text);
bool IsAscii(std::string_view text);

}  // namespace ornavo
