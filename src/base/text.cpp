// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace ornavo {

namespace {

/// The characters of the Windows-1252 bytes 0x80 to 0x9F; every other byte is the character of the same
/// number.
constexpr std::array<char16_t, 32> UpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned char Byte(char c) {
    return static_cast<unsigned char>(c);
}
bool Ascii(char c) {
    return Byte(c) < 0x80;
}

char LowerAscii(char c) {
    return static_cast<char>(c + (c >= 'A' && c <= 'Z' ? 'a' - 'A' : 0));
}

/// A decoded character.
struct Character {
    char32_t code;
    std::size_t length;  // bytes
};

constexpr char32_t Broken = 0xFFFFFFFF;  // a byte that is not part of a valid character

/// The first character of the text. Each byte of an overlong form or a surrogate is broken.
Character Decode(std::string_view text) {
    const unsigned char first = Byte(text[0]);
    if (first < 0x80) return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return {Broken, 1};
    char32_t code = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((Byte(text[i]) & 0xC0) != 0x80) return {Broken, 1};
        code = code << 6 | (Byte(text[i]) & 0x3F);
    }
    constexpr std::array<char32_t, 5> Least = {0, 0, 0x80, 0x800, 0x10000};
    if (code < Least[length] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) return {Broken, 1};
    return {code, length};
}

/// At most three bytes: the file's characters need no more.
void AppendUtf8(std::string& text, char32_t code) {
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

/// The byte of a character in the file, -1 if it has none.
int FileByte(char32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<int>(code);
    const auto* const found = std::find(UpperHalf.begin(), UpperHalf.end(), code);
    return found == UpperHalf.end() ? -1 : 0x80 + static_cast<int>(found - UpperHalf.begin());
}

/// Only the letters of Windows-1252. A letter and its lower case have the same number of bytes in UTF-8.
char32_t LowerCode(char32_t code) {
    if (code >= 0xC0 && code <= 0xDE && code != 0xD7) return code + 0x20;
    switch (code) {
        case 0x0152:
        case 0x0160:
        case 0x017D:
            return code + 1;
        case 0x0178:
            return 0xFF;
        default:
            return code;
    }
}

}  // namespace

bool IsAscii(std::string_view text) {
    std::size_t at = 0;
    for (std::uint64_t eight; at + sizeof eight <= text.size(); at += sizeof eight) {
        std::memcpy(&eight, text.data() + at, sizeof eight);
        if (eight & 0x8080808080808080u) return false;
    }
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), Ascii);
}

bool EqualText(std::string_view one, std::string_view two) {
    if (one.size() != two.size()) return false;
    for (std::size_t i = 0; i < one.size(); ++i) {
        if (one[i] == two[i]) continue;
        if (!Ascii(one[i]) || !Ascii(two[i])) return LowerText(one) == LowerText(two);
        if (LowerAscii(one[i]) != LowerAscii(two[i])) return false;
    }
    return true;
}

std::size_t HashText(std::string_view text) {
    // All bytes beyond ASCII count alike, so that a letter and its lower case have the same hash.
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const char c : text) hash = (hash ^ (Ascii(c) ? Byte(LowerAscii(c)) : 0x80u)) * 0x100000001B3u;
    return static_cast<std::size_t>(hash ^ hash >> 32);
}

std::string LowerText(std::string_view text) {
    std::string lower(text);
    if (IsAscii(text)) {
        for (char& c : lower) c = LowerAscii(c);
        return lower;
    }
    lower.clear();
    while (!text.empty()) {
        const Character character = Decode(text);
        const char32_t code = LowerCode(character.code);
        if (character.length == 1)
            lower += LowerAscii(text[0]);
        else if (code == character.code)
            lower += text.substr(0, character.length);
        else
            AppendUtf8(lower, code);
        text.remove_prefix(character.length);
    }
    return lower;
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool ContainsSeparator(std::string_view text) {
    return text.find_first_of("\\/") != std::string_view::npos;
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to) {
    if (from.empty() || text.find(from) == std::string::npos) return text;
    std::string result;
    std::size_t at = 0;
    for (std::size_t next; (next = text.find(from, at)) != std::string::npos; at = next + from.size())
        result.append(text, at, next - at).append(to);
    return result.append(text, at);
}

std::string FromFileBytes(std::string_view bytes) {
    if (IsAscii(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    for (const char c : bytes) {
        const unsigned char byte = Byte(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? char32_t{UpperHalf[byte - 0x80u]} : char32_t{byte});
    }
    return text;
}

std::string ToFileBytes(std::string_view text) {
    if (IsAscii(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const Character character = Decode(text);
        const int byte = FileByte(character.code);
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
        text.remove_prefix(character.length);
    }
    return bytes;
}

bool FitsFile(std::string_view text) {
    if (IsAscii(text)) return true;
    while (!text.empty()) {
        const Character character = Decode(text);
        if (FileByte(character.code) < 0) return false;
        text.remove_prefix(character.length);
    }
    return true;
}

}  // namespace ornavo
