// SPDX-License-Identifier: MIT
// Everything that is asked or told goes through here: real dialogs, the error stream, or a test's script.
#pragma once

#include <string_view>

namespace ornavo {

enum class Icon { None, Information, Question, Critical };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

class Prompts {
public:
    virtual ~Prompts() = default;
    virtual Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) = 0;
};
Prompts& prompts();  // Failure if nobody has been named
void UsePrompts(Prompts* answers);

}  // namespace ornavo
