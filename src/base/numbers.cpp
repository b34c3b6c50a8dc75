// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "base/failure.h"

namespace ornavo {

namespace {

NumberSigns userSigns;

Failure Overflow() {
    return Failure(Failure::Overflow, "Numbers");
}

template <class Whole>
Whole Narrow(double whole) {
    // The condition is written so that NaN fails it.
    if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max()))
        throw Overflow();
    return static_cast<Whole>(whole);
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Reads a number's text from left to right.
class Cursor {
public:
    explicit Cursor(std::string_view text) : rest_(text) {}
    bool AtEnd() const { return rest_.empty(); }
    bool AtDigit() const { return !rest_.empty() && IsDigit(rest_.front()); }
    char TakeOne() {
        const char c = rest_.front();
        rest_.remove_prefix(1);
        return c;
    }
    bool Take(std::string_view sign) {
        if (sign.empty() || !rest_.starts_with(sign)) return false;
        rest_.remove_prefix(sign.size());
        return true;
    }
    bool TakeSign(bool& negative) {
        if (rest_.empty() || (rest_.front() != '+' && rest_.front() != '-')) return false;
        negative = TakeOne() == '-';
        return true;
    }
    std::size_t TakeDigits(std::string& digits) {
        const std::size_t before = digits.size();
        while (AtDigit()) digits += TakeOne();
        return digits.size() - before;
    }

private:
    std::string_view rest_;
};

/// A decimal number in parts: 0.<digits> times ten to the power of (point + exponent).
struct Decimal {
    bool negative = false;
    std::string digits;
    long point = 0;
    long exponent = 0;

    /// Empty if the number is beyond the range of a double; 0 if it is too small for one.
    std::optional<double> Number() const {
        const std::size_t lead = digits.find_first_not_of('0');
        if (lead == std::string::npos) return 0.0;
        const long magnitude = point - static_cast<long>(lead) + exponent;
        if (magnitude > 400) return std::nullopt;
        if (magnitude < -400) return 0.0;
        const std::string plain = "0." + digits.substr(lead) + "e" + std::to_string(magnitude);
        double number = 0;
        const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), number);
        if (read.ec == std::errc::result_out_of_range) {
            if (magnitude > 0) return std::nullopt;
            return 0.0;
        }
        return negative ? -number : number;
    }
};

/// The exponent after an "E"; empty without digits. Limited to 100 million, which is far beyond any double.
std::optional<long> TakeExponent(Cursor& cursor) {
    bool negative = false;
    cursor.TakeSign(negative);
    std::string digits;
    if (cursor.TakeDigits(digits) == 0) return std::nullopt;
    long exponent = 0;
    for (const char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), 100'000'000L);
    return negative ? -exponent : exponent;
}

/// The whole text as a number; empty if it is not one.
std::optional<Decimal> ReadDecimal(std::string_view text, const NumberSigns& signs) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    Cursor cursor(text);
    Decimal number;
    cursor.TakeSign(number.negative);
    while (cursor.TakeDigits(number.digits) > 0 || (!number.digits.empty() && cursor.Take(signs.group))) {
    }
    number.point = static_cast<long>(number.digits.size());
    if (cursor.Take(signs.decimal)) cursor.TakeDigits(number.digits);
    if (number.digits.empty()) return std::nullopt;
    if (cursor.Take("e") || cursor.Take("E")) {
        const auto exponent = TakeExponent(cursor);
        if (!exponent) return std::nullopt;
        number.exponent = *exponent;
    }
    if (!cursor.AtEnd()) return std::nullopt;
    return number;
}

/// A fast path: most numbers of a skin are a few digits, perhaps with a minus. A double holds fifteen digits
/// exactly.
std::optional<double> ReadFewDigits(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    if (text.empty() || text.size() > 15) return std::nullopt;
    std::int64_t number = 0;
    for (const char c : text) {
        if (!IsDigit(c)) return std::nullopt;
        number = number * 10 + (c - '0');
    }
    return static_cast<double>(negative ? -number : number);
}

/// Most texts that are tested are names and captions; their first byte decides.
bool MayBeNumber(std::string_view text, const NumberSigns& signs) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return false;
    const char c = text[first];
    return IsDigit(c) || c == '+' || c == '-' || (!signs.decimal.empty() && c == signs.decimal.front());
}

}  // namespace

const NumberSigns& numberSigns() {
    return userSigns;
}
void UseNumberSigns(NumberSigns signs) {
    userSigns = std::move(signs);
}

double RoundHalfEven(double value) {
    return std::nearbyint(value);
}
std::int32_t ToLong(double value) {
    return Narrow<std::int32_t>(RoundHalfEven(value));
}
std::int16_t ToInteger(double value) {
    return Narrow<std::int16_t>(RoundHalfEven(value));
}
std::int32_t FloorToLong(double value) {
    return Narrow<std::int32_t>(std::floor(value));
}

bool IsNumeric(std::string_view text) {
    return IsNumeric(text, userSigns);
}

bool IsNumeric(std::string_view text, const NumberSigns& signs) {
    if (!MayBeNumber(text, signs)) return false;
    if (ReadFewDigits(text)) return true;
    const auto number = ReadDecimal(text, signs);
    return number && number->Number();
}

double ToNumber(std::string_view text) {
    return ToNumber(text, userSigns);
}

double ToNumber(std::string_view text, const NumberSigns& signs) {
    if (const auto few = ReadFewDigits(text)) return *few;
    const auto number = ReadDecimal(text, signs);
    if (!number) throw Failure(Failure::TypeMismatch, "Numbers");
    const auto value = number->Number();
    if (!value) throw Overflow();
    return *value;
}

double Val(std::string_view text) {
    std::string packed;
    std::copy_if(text.begin(), text.end(), std::back_inserter(packed),
                 [](char c) { return !IsBlank(c) && c != '\n' && c != '\r'; });
    Cursor cursor(packed);
    Decimal number;
    cursor.TakeSign(number.negative);
    number.point = static_cast<long>(cursor.TakeDigits(number.digits));
    if (cursor.Take(".")) cursor.TakeDigits(number.digits);
    if (cursor.Take("e") || cursor.Take("E")) number.exponent = TakeExponent(cursor).value_or(0);
    const auto value = number.Number();
    if (!value) throw Overflow();
    return *value;
}

std::string NumberText(std::int32_t value) {
    return std::to_string(value);
}

std::string NumberText(double value, std::string_view decimal) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
    if (std::fabs(value) < 1e15 && value == std::floor(value))
        return std::to_string(static_cast<std::int64_t>(value));

    // "d.dddddddddddddde+XX": fifteen significant digits and the power of ten of the first.
    char buffer[40];
    const char* const end =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, 14)
            .ptr;
    const std::string_view written(buffer, static_cast<std::size_t>(end - buffer));
    const std::size_t e = written.find('e');
    std::string digits{written[0]};
    digits += written.substr(2, e - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    int power = 0;
    std::from_chars(buffer + e + 2, end, power);
    if (written[e + 1] == '-') power = -power;

    std::string text = value < 0 ? "-" : "";
    const int places = static_cast<int>(digits.size()) - 1 - power;
    if ((power < -4 && places > 15) || power >= 15) {
        text += digits[0];
        if (digits.size() > 1) text.append(decimal).append(digits, 1);
        const std::string tens = std::to_string(std::abs(power));
        return text + (power < 0 ? "E-" : "E+") + (tens.size() < 2 ? "0" : "") + tens;
    }
    if (power < 0)
        return text.append("0").append(decimal).append(static_cast<std::size_t>(-power - 1), '0') + digits;
    const std::size_t whole = static_cast<std::size_t>(power) + 1;
    if (digits.size() <= whole) return text + digits + std::string(whole - digits.size(), '0');
    return text.append(digits, 0, whole).append(decimal).append(digits, whole);
}

}  // namespace ornavo
