// SPDX-License-Identifier: MIT
// Rounding, and numbers as the user's system writes them. Independent of the C locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ornavo {

/// The decimal and group signs of the user's system, in UTF-8. Handed in once at start.
struct NumberSigns {
    std::string decimal = ".";
    std::string group = ",";
};
const NumberSigns& numberSigns();
void UseNumberSigns(NumberSigns signs);

double RoundHalfEven(double value);
/// Round half to even, to 32 and to 16 bits. Failure 6 beyond the range and for NaN.
std::int32_t ToLong(double value);
std::int16_t ToInteger(double value);
/// The greatest 32-bit integer that is not above the value. Failure 6 beyond the range and for NaN.
std::int32_t FloorToLong(double value);

/// Whether the text is a number as the user's system writes it: blanks around it, one sign, digits with group
/// signs, the decimal sign, an exponent. "nan", "inf", "0x1F", "1_000", "+", "-" and "" are not numbers, nor
/// is one beyond the range of a double. Without `signs`, the user's are taken.
bool IsNumeric(std::string_view text);
bool IsNumeric(std::string_view text, const NumberSigns& signs);
/// The value of such a text. Failure 13 if it isn't a number, 6 if it is too large.
double ToNumber(std::string_view text);
double ToNumber(std::string_view text, const NumberSigns& signs);
/// The number at the start of the text, with "." as decimal sign and ignoring all blanks; 0 if there is none.
/// Failure 6 if it is too large.
double Val(std::string_view text);

/// The number as text: up to 15 digits, no group signs, with the decimal sign given. "1E+15" and above has an
/// exponent, and so has a number below 0.0001 that needs more than 15 decimal places.
std::string NumberText(double value, std::string_view decimal = numberSigns().decimal);
std::string NumberText(std::int32_t value);

}  // namespace ornavo
