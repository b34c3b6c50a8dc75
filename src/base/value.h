// SPDX-License-Identifier: MIT
// A value of any field type, and the usual conversions between them.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/font.h"

namespace ornavo {

/// Empty, a boolean, a whole number, a real number, a text or a font. The conversions follow the usual
/// rules: True is -1, empty is 0 or "", a real becomes whole half to even, a text that is a number becomes
/// it (the user's signs, else the English ones), a number becomes its plain text. Failure 13 where there is
/// none, 6 on overflow.
class Value {
public:
    Value() = default;
    Value(bool value) : held_(value) {}
    Value(std::int32_t value) : held_(value) {}
    Value(double value) : held_(value) {}
    Value(std::string value) : held_(std::move(value)) {}
    Value(const char* value) : held_(std::string(value)) {}
    Value(FontRef value) : held_(std::move(value)) {}

    bool IsEmpty() const { return std::holds_alternative<std::monostate>(held_); }
    template <class T>
    bool Is() const {
        return std::holds_alternative<T>(held_);
    }
    template <class T>
    const T& As() const {
        return std::get<T>(held_);
    }

    bool ToBoolean() const;
    std::int32_t ToLong() const;
    double ToDouble() const;
    std::string ToText() const;  // "True" and "False" for booleans
    FontRef ToFont() const;      // Failure 13 unless it is one; empty gives null

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, bool, std::int32_t, double, std::string, FontRef> held_;
};

}  // namespace ornavo
