// SPDX-License-Identifier: MIT
#include "document/skin_lines.h"

#include <charconv>
#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace ornavo {

namespace {

constexpr auto None = std::string_view::npos;

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The four words that are booleans on every system; upper and lower case matter.
std::optional<bool> ReadBoolean(std::string_view text) {
    if (text == "True" || text == "Wahr") return true;
    if (text == "False" || text == "Falsch") return false;
    return std::nullopt;
}

/// An integer of up to nine digits, which always fits.
std::optional<std::int32_t> PlainWhole(std::string_view text) {
    const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
    if (digits.empty() || digits.size() > 9) return std::nullopt;
    std::int32_t whole = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return std::nullopt;
        whole = whole * 10 + (c - '0');
    }
    return digits.size() < text.size() ? -whole : whole;
}

/// Whether the text is surely not a number or boolean: it starts with a letter, and only some letters begin a
/// boolean.
bool IsPlainText(std::string_view text) {
    if (text.empty()) return true;
    const char first = text.front();
    if (!IsLetter(first)) return false;
    if ((first == 'T' || first == 'W' || first == 'F') && ReadBoolean(text)) return false;
    return IsAscii(text);
}

template <class Whole>
void AppendWhole(std::string& bytes, Whole value) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    bytes.append(digits, end);
}

/// Appends "+", the floor, "." and the decimals. False, with nothing appended, if the rounded decimals are 0.
bool AppendFraction(std::string& bytes, double value) {
    const std::int32_t whole = FloorToLong(value);
    const double fraction = RoundHalfEven((value - whole) * 10000) / 10000;
    if (fraction == 0) return false;
    bytes += '+';
    AppendWhole(bytes, whole);
    bytes += '.';
    // The text behind "0.". A fraction that was rounded up to 1 has none, and is read back as the floor.
    const std::string text = NumberText(fraction, ".");
    if (text.size() > 2) bytes.append(text, 2);
    return true;
}

}  // namespace

std::string_view TrimTag(std::string_view line) {
    const std::size_t first = line.find('<');
    const std::size_t last = line.rfind('>');
    if (first == None || last == None || last < first) return {};
    return line.substr(first, last - first + 1);
}

TagLine GetTag(std::string_view line) {
    const std::size_t open = line.find('<');
    if (open == None) return {};
    const std::size_t close = line.find('>', open);
    if (close == None) return {};
    TagLine parts{line.substr(open + 1, close - open - 1), std::nullopt};
    const std::size_t last = line.rfind('<');
    if (last > close && line.find('>', last) != None) parts.value = line.substr(close + 1, last - close - 1);
    return parts;
}

std::optional<TagLine> PlainLine(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    std::size_t open = 0;
    while (open < line.size() && line[open] == '\t') ++open;
    if (open == line.size() || line[open] != '<') return std::nullopt;
    // A tag is short: a loop finds its end sooner than a search does.
    std::size_t close = open + 1;
    while (close < line.size() && line[close] != '>' && line[close] != '<') ++close;
    if (close == line.size() || line[close] == '<') return std::nullopt;
    const std::string_view tag = line.substr(open + 1, close - open - 1);
    const std::string_view rest = line.substr(close + 1);
    if (rest.size() < tag.size() + 3) return std::nullopt;
    const std::string_view end = rest.substr(rest.size() - tag.size() - 3);
    if (!end.starts_with("</") || !end.ends_with('>') || end.substr(2, tag.size()) != tag)
        return std::nullopt;
    return TagLine{tag, rest.substr(0, rest.size() - end.size())};
}

Value ReadValue(std::string_view bytes) {
    if (const auto flag = ReadBoolean(bytes)) return Value(*flag);
    std::string text = FromFileBytes(bytes);
    if (IsMyNumeric(text)) return Value(ConvNumeric(text));
    if (IsNumeric(text)) return Value(ToNumber(text));
    return Value(std::move(text));
}

std::string ReadBack(const std::string& text) {
    std::string bytes;
    Attempt([&] { AppendValue(bytes, text); });
    return ReadValue(bytes).ToText();
}

bool IsMyNumeric(std::string_view value) {
    return value.starts_with('+') && value.find('.') != None;
}

double ConvNumeric(std::string_view value) {
    const std::size_t point = value.find('.');
    double whole = 0;
    if (point == None) {
        Attempt([&] { whole = Val(value); });
        return whole;
    }
    const std::string_view behind = value.substr(point + 1);
    std::int32_t digits = 0;
    if (point > 0) Attempt([&] { whole = ToNumber(value.substr(1, point - 1)); });
    Attempt([&] { digits = ToLong(ToNumber(behind)); });
    return whole + digits / std::pow(10.0, static_cast<double>(behind.size()));
}

bool AppendValue(std::string& bytes, bool value) {
    if (value) bytes += "True";
    return value;
}

bool AppendValue(std::string& bytes, std::int32_t value) {
    AppendWhole(bytes, value);
    return true;
}

bool AppendValue(std::string& bytes, double value) {
    if (FloorToLong(value) == value)
        AppendWhole(bytes, static_cast<std::int32_t>(value));
    else if (!AppendFraction(bytes, value))
        bytes += ToFileBytes(NumberText(value));
    return true;
}

bool AppendValue(std::string& bytes, const std::string& value) {
    if (value.empty()) return false;
    const bool number = !IsLetter(value.front()) && IsNumeric(value);
    if (number && AppendFraction(bytes, ToNumber(value))) return true;
    if (IsAscii(value))
        bytes += value;
    else
        bytes += ToFileBytes(value);
    return true;
}

bool AppendValue(std::string& bytes, const Value& value) {
    if (value.IsEmpty()) return false;
    if (value.Is<bool>()) return AppendValue(bytes, value.As<bool>());
    if (value.Is<std::int32_t>()) return AppendValue(bytes, value.As<std::int32_t>());
    if (value.Is<double>()) return AppendValue(bytes, value.As<double>());
    if (value.Is<std::string>()) return AppendValue(bytes, value.As<std::string>());
    return false;
}

bool TakePlain(std::string_view bytes, bool& field) {
    const auto flag = ReadBoolean(bytes);
    if (flag) field = *flag;
    return flag.has_value();
}

bool TakePlain(std::string_view bytes, std::int32_t& field) {
    const auto whole = PlainWhole(bytes);
    if (whole) field = *whole;
    return whole.has_value();
}

bool TakePlain(std::string_view bytes, double& field) {
    const auto whole = PlainWhole(bytes);
    if (whole) field = *whole;
    return whole.has_value();
}

bool TakePlain(std::string_view bytes, std::string& field) {
    if (!IsPlainText(bytes)) return false;
    field.assign(bytes);
    return true;
}

bool TakePlain(std::string_view bytes, Value& field) {
    if (const auto whole = PlainWhole(bytes))
        field = Value(static_cast<double>(*whole));
    else if (IsPlainText(bytes))
        field = Value(std::string(bytes));
    else
        return false;
    return true;
}

}  // namespace ornavo
