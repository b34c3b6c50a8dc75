// SPDX-License-Identifier: MIT
// JSON whose members keep the order in which they were written.
#pragma once

#include <string>
#include <string_view>

#include "base/value.h"

namespace ornavo {

/// Writes straight into a text; commas and indentation are its matter, nesting is the caller's.
class JsonWriter {
public:
    void BeginObject(std::string_view name = "") { Begin(name, '{'); }
    void EndObject() { End('}'); }
    void BeginArray(std::string_view name = "") { Begin(name, '['); }
    void EndArray() { End(']'); }
    /// Booleans, numbers and texts by run-time type, null for empty, an object or null for a font.
    void Write(std::string_view name, const Value& value);

    /// The whole text with a line end.
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
