// SPDX-License-Identifier: MIT
#include "base/value.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace ornavo {

namespace {

Failure Mismatch() {
    return Failure(Failure::TypeMismatch, "Value");
}

/// The user's signs come first, because the text may be what NumberText wrote. A file from another system may
/// have the English signs.
double NumberOf(const std::string& text) {
    static const NumberSigns english;
    return IsNumeric(text) ? ToNumber(text) : ToNumber(text, english);
}

}  // namespace

bool Value::ToBoolean() const {
    if (Is<std::string>()) {
        if (EqualText(As<std::string>(), "True")) return true;
        if (EqualText(As<std::string>(), "False")) return false;
    }
    return ToDouble() != 0;
}

std::int32_t Value::ToLong() const {
    if (Is<std::int32_t>()) return As<std::int32_t>();
    return ornavo::ToLong(ToDouble());
}

double Value::ToDouble() const {
    if (IsEmpty()) return 0;
    if (Is<bool>()) return As<bool>() ? -1 : 0;
    if (Is<std::int32_t>()) return As<std::int32_t>();
    if (Is<double>()) return As<double>();
    if (Is<std::string>()) return NumberOf(As<std::string>());
    throw Mismatch();
}

std::string Value::ToText() const {
    if (IsEmpty()) return "";
    if (Is<bool>()) return As<bool>() ? "True" : "False";
    if (Is<std::int32_t>()) return NumberText(As<std::int32_t>());
    if (Is<double>()) return NumberText(As<double>());
    if (Is<std::string>()) return As<std::string>();
    throw Mismatch();
}

FontRef Value::ToFont() const {
    if (IsEmpty()) return nullptr;
    if (Is<FontRef>()) return As<FontRef>();
    throw Mismatch();
}

}  // namespace ornavo
