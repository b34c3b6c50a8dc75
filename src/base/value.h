// SPDX-License-Identifier: MIT
// A value of any field type, and the conversions between the types.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/font.h"

namespace ornavo {

/// Holds nothing, a boolean, a 32-bit integer, a double, a text or a font. Conversions: true is -1; empty is
/// 0 or ""; a double is rounded half to even; a text is read as a number with the user's signs, or else with
/// "." and ","; a number becomes its plain text. Failure 13 if there is no conversion, 6 on overflow.
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
    FontRef ToFont() const;      // null if empty; Failure 13 if it is no font

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, bool, std::int32_t, double, std::string, FontRef> held_;
};

}  // namespace ornavo
