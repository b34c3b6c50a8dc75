// SPDX-License-Identifier: MIT
// Rounding, and numbers as the user's system writes them. Nothing here asks the C locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ornavo {

/// How the user's system writes numbers, in UTF-8. Handed in once at start.
struct NumberSigns {
    std::string decimal = ".";
    std::string group = ",";
};
const NumberSigns& numberSigns();
void UseNumberSigns(NumberSigns signs);

double RoundHalfEven(double value);
/// To 32 and 16 bits, half to even. Failure 6 beyond the range or for what is no number.
std::int32_t ToLong(double value);
std::int16_t ToInteger(double value);
/// The greatest whole number not above the value, in 32 bits. Failure 6 beyond the range.
std::int32_t FloorToLong(double value);

/// Whether the user's system takes the text for a number: blanks around, a sign in front, group signs,
/// the decimal sign, an exponent. Not: "nan", "inf", "0x1F", "1_000", "+", "-", "".
/// A number beyond the range of a double is none. The form without signs takes those of the user.
bool IsNumeric(std::string_view text);
bool IsNumeric(std::string_view text, const NumberSigns& signs);
/// The number that such a text stands for. Failure 13 if it stands for none, 6 if it is too large.
double ToNumber(std::string_view text);
double ToNumber(std::string_view text, const NumberSigns& signs);
/// The number at the start of a text with "." as decimal sign, blanks skipped anywhere; 0 if there is
/// none. Failure 6 if it is too large.
double Val(std::string_view text);

/// The plain text of a number: up to 15 digits, no group signs, with the decimal sign given. "1E+15" from
/// there on, and "1E-16" below 0.0001 for what 15 decimal places don't hold.
std::string NumberText(double value, std::string_view decimal = numberSigns().decimal);
std::string NumberText(std::int32_t value);

}  // namespace ornavo
