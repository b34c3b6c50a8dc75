// SPDX-License-Identifier: MIT
// Everything that is asked or told goes through here: real dialogs, the error stream, or a test's script.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/colour.h"
#include "base/font.h"

namespace ornavo {

enum class Icon { None, Information, Question, Critical };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct FileQuestion {
    std::string title;
    std::string filter;  // "Name|*.a;*.b|Other|*.c"
    std::string folder;
    std::string name;
    bool save = false;
};

class Prompts {
public:
    virtual ~Prompts() = default;
    virtual Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) = 0;
    virtual std::optional<std::string> Input(std::string_view text, std::string_view title, std::string_view proposal) = 0;
    virtual std::optional<std::string> File(const FileQuestion& question) = 0;
    virtual bool ColourOf(Colour& colour, std::array<Colour, 16>& custom) = 0;
    virtual bool FontOf(Font& font) = 0;
};
Prompts& prompts();  // Failure if nobody has been named
void UsePrompts(Prompts* answers);

}  // namespace ornavo
