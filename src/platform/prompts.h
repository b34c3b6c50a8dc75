// SPDX-License-Identifier: MIT
// All messages and questions to the user go through this interface: dialogs, the error stream, or a test's
// script.
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
enum class Buttons { Ok, YesNo, YesNoCancel };  // the default button is the first, but No for YesNo
enum class Answer { Ok, Yes, No, Cancel };

/// A question for a file to read or to write.
struct FileQuestion {
    std::string title;
    std::string filter;  // "Name|*.a;*.b|Name|*.c"; empty: no list of types
    std::string folder;  // where the dialog starts
    std::string name;    // the proposed name
    bool save = false;   // for writing: the file need not exist, and an existing one is confirmed
};
using CustomColours = std::array<Colour, 16>;

/// Tells and asks the user.
class Prompts {
public:
    virtual ~Prompts() = default;
    virtual Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) = 0;
    // The following are empty after Cancel.
    virtual std::optional<std::string> Input(std::string_view text, std::string_view title,
                                             std::string_view proposal) = 0;
    virtual std::optional<std::string> File(const FileQuestion& question) = 0;
    /// `custom` is shown as the user's own colours and returned as the user left it, even after Cancel.
    virtual std::optional<Colour> ColourOf(Colour start, CustomColours& custom) = 0;
    /// A face that is not installed, and the size, are kept unless the user picks another one. `offered` are
    /// faces to list in addition to the installed ones.
    virtual std::optional<Font> FontOf(const Font& start, const std::vector<std::string>& offered) = 0;
};
Prompts& prompts();                     // Failure if UsePrompts has not been called
Prompts* UsePrompts(Prompts* answers);  // returns the ones used before; null: nobody

}  // namespace ornavo
