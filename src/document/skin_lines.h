// SPDX-License-Identifier: MIT
// The lines of the skin file, reading and writing side by side. A line is bytes of the file (Windows-1252), a
// value is UTF-8; the type of a value that is read depends on its form.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/value.h"

namespace ornavo {

/// From the first "<" to the last ">", both included; empty if there is no such span.
std::string_view TrimTag(std::string_view line);

/// A line of the file in its parts.
struct TagLine {
    std::string_view tag;  // without the brackets; empty if there is no tag
    std::optional<std::string_view>
        value;  // between the first ">" and the last "<"; none on a line of structure
};
TagLine GetTag(std::string_view line);
/// The same in one pass for a whole line of the form that a save writes: tabs, tag, value, closing tag. None
/// for any other line, which TrimTag and GetTag must read.
std::optional<TagLine> PlainLine(std::string_view line);

/// The value of the bytes between two tags: a boolean, a double or a text. Numbers without "+" and "." are
/// read with the signs of the user's system.
Value ReadValue(std::string_view bytes);
/// The text that a field has after `text` was written and read again: a number or a boolean in its plain
/// form. "" if `text` is not written.
std::string ReadBack(const std::string& text);
/// Whether the text has the form of numbers that does not depend on a system's signs: "+" first and a "." in
/// it.
bool IsMyNumeric(std::string_view value);
/// The number of such a text; a part of it that is not a number counts as 0. Never fails.
double ConvNumeric(std::string_view value);

/// Appends the bytes of a value. A number is written plainly, or as "+", its floor, "." and up to four
/// decimals above the floor. Returns false and appends nothing for a value that gets no line (false, "",
/// empty). Failure 6 for a number whose floor is beyond 32 bits.
bool AppendValue(std::string& bytes, bool value);
bool AppendValue(std::string& bytes, std::int32_t value);
bool AppendValue(std::string& bytes, double value);
bool AppendValue(std::string& bytes, const std::string& value);
bool AppendValue(std::string& bytes, const Value& value);

/// Fast paths of reading, for the forms that most lines have. False, with the field unchanged, if Field::set
/// must decide; otherwise the result is the one that `set` would give.
bool TakePlain(std::string_view bytes, bool& field);
bool TakePlain(std::string_view bytes, std::int32_t& field);
bool TakePlain(std::string_view bytes, double& field);
bool TakePlain(std::string_view bytes, std::string& field);
bool TakePlain(std::string_view bytes, Value& field);

}  // namespace ornavo
