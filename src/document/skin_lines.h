// SPDX-License-Identifier: MIT
// The lines of the skin file, both ways side by side: a line is taken apart and its value read by its
// look, a value is put into its form. Lines are bytes of the file, values are the program's UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/value.h"

namespace ornavo {

/// From the first "<" to the last ">", both included; empty where there is no such span.
std::string_view TrimTag(std::string_view line);

struct TagLine {
    std::string_view tag;  // without its brackets; empty where there is none
    std::optional<std::string_view>
        value;  // between the first ">" and the last "<"; none on a line of structure
};
TagLine GetTag(std::string_view line);

/// The value that the bytes between two tags stand for: a boolean, a real number or a text. Numbers
/// without "+" and "." are read with the signs of the user's system.
Value ReadValue(std::string_view bytes);
/// The text that a field has once the text was written and read: where it looks like a number or a boolean,
/// the plain text of that. "" where it has no line.
std::string ReadBack(const std::string& text);
/// Whether the text has the form that no system's signs change: "+" first and a "." in it.
bool IsMyNumeric(std::string_view value);
/// The number of such a text; a part of it that is no number counts as 0. Never fails.
double ConvNumeric(std::string_view value);

/// Appends the bytes of a value; a number plain, or as "+", the floor, "." and up to four decimals above the
/// floor. False, and nothing is appended, for a value that has no line (false, "", empty). Failure 6 for a
/// number whose floor is beyond 32 bits.
bool AppendValue(std::string& bytes, bool value);
bool AppendValue(std::string& bytes, std::int32_t value);
bool AppendValue(std::string& bytes, double value);
bool AppendValue(std::string& bytes, const std::string& value);
bool AppendValue(std::string& bytes, const Value& value);

/// The short roads of reading, for the forms that most lines have. False where the general road has to
/// decide; nothing is changed then. Where they take a value, both roads come to the same.
bool TakePlain(std::string_view bytes, bool& field);
bool TakePlain(std::string_view bytes, std::int32_t& field);
bool TakePlain(std::string_view bytes, double& field);
bool TakePlain(std::string_view bytes, std::string& field);
bool TakePlain(std::string_view bytes, Value& field);

}  // namespace ornavo
