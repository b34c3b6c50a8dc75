// SPDX-License-Identifier: MIT
// Prompts answered by a test, which sees what was asked.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/prompts.h"

namespace ornavo::testing {

class ScriptedPrompts : public Prompts {
public:
    ScriptedPrompts() { UsePrompts(this); }
    ~ScriptedPrompts() override { UsePrompts(nullptr); }
    Answer Message(std::string_view text, std::string_view title, Icon, Buttons) override {
        asked.push_back(std::string(title) + ": " + std::string(text));
        if (answers.empty()) return Answer::Ok;
        const Answer next = answers.front();
        answers.pop_front();
        return next;
    }
    std::vector<std::string> asked;
    std::deque<Answer> answers;
};

}  // namespace ornavo::testing
