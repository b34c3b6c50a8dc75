// SPDX-License-Identifier: MIT
// Everything that is asked or told goes through here: real dialogs, the error stream, or a test's script.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "base/font.h"

namespace ornavo {

enum class Icon { None, Information, Question, Critical, Exclamation };
enum class Buttons { Ok, YesNo, YesNoCancel };  // the default is the first, of YesNo it is No
enum class Answer { Ok, Yes, No, Cancel };

/// Which file is to be read or written.
struct FileQuestion {
    std::string title;
    std::string filter;  // "Name|*.a;*.b|Name|*.c"; empty: no list of types
    std::string folder;  // where the choice begins
    std::string name;    // proposed
    bool save = false;   // the file need not exist; one that exists is asked about
};
using CustomColours = std::array<Colour, 16>;

class Prompts {
public:
    virtual ~Prompts() = default;
    virtual Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) = 0;
    // Nothing after Cancel.
    virtual std::optional<std::string> Input(std::string_view text, std::string_view title,
                                             std::string_view proposal) = 0;
    virtual std::optional<std::string> File(const FileQuestion& question) = 0;
    /// `custom` is shown beside the colours and comes back as the user left it, after Cancel too.
    virtual std::optional<Colour> ColourOf(Colour start, CustomColours& custom) = 0;
    /// A face that this machine lacks, and a size, stay unless others are picked. `offered` are faces for the
    /// list besides those of this machine.
    virtual std::optional<Font> FontOf(const Font& start, const std::vector<std::string>& offered) = 0;
};
Prompts& prompts();  // Failure if nobody has been named
void UsePrompts(Prompts* answers);

}  // namespace ornavo
