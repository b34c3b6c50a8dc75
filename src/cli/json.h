// SPDX-License-Identifier: MIT
// Writes JSON whose members keep the order in which they are written.
#pragma once

#include <string>
#include <string_view>

#include "base/value.h"

namespace ornavo {

/// Writes JSON into a text. It inserts commas and indentation; the caller must nest correctly.
class JsonWriter {
public:
    void BeginObject(std::string_view name = "") { Begin(name, '{'); }
    void EndObject() { End('}'); }
    void BeginArray(std::string_view name = "") { Begin(name, '['); }
    void EndArray() { End(']'); }
    /// Writes a boolean, number or text by the value's type, null for an empty value, an object or null for a
    /// font.
    void Write(std::string_view name, const Value& value);

    /// Ends the text with a line break and returns it; call once.
    const std::string& Text();

private:
    void Begin(std::string_view name, char bracket);
    void End(char bracket);
    void NextItem(std::string_view name);
    void WriteFont(std::string_view name, const FontRef& font);

    std::string text_;
    int depth_ = 0;
    bool first_ = true;
};

}  // namespace ornavo
