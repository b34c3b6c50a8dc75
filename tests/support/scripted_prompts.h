// SPDX-License-Identifier: MIT
// Prompts answered by a test, which sees what was asked.
#pragma once

#include <deque>

#include "platform/prompts.h"

namespace ornavo::testing {

class ScriptedPrompts : public Prompts {
public:
    ScriptedPrompts() { UsePrompts(this); }
    ~ScriptedPrompts() override { UsePrompts(nullptr); }
    Answer Message(std::string_view text, std::string_view title, Icon, Buttons) override {
        asked.push_back(std::string(title) + ": " + std::string(text));
        return Next(answers).value_or(Answer::Ok);
    }
    std::optional<std::string> Input(std::string_view text, std::string_view title,
                                     std::string_view proposal) override {
        asked.push_back(std::string(title) + ": " + std::string(text) + " [" + std::string(proposal) + "]");
        return Next(inputs);
    }
    std::optional<std::string> File(const FileQuestion& question) override {
        questions.push_back(question);
        return Next(files);
    }
    std::optional<Colour> ColourOf(Colour, CustomColours& custom) override {
        customColours = custom;
        return Next(colours);
    }
    std::optional<Font> FontOf(const Font&, const std::vector<std::string>&) override { return Next(fonts); }

    std::vector<std::string> asked;  // "title: text", of an input with " [proposal]"
    std::vector<FileQuestion> questions;
    CustomColours customColours = {};
    // What is answered, in turn; when none is left: Ok, and Cancel for the others.
    std::deque<Answer> answers;
    std::deque<std::string> inputs, files;
    std::deque<Colour> colours;
    std::deque<Font> fonts;

private:
    template <class T>
    static std::optional<T> Next(std::deque<T>& script) {
        if (script.empty()) return std::nullopt;
        std::optional<T> next = script.front();
        script.pop_front();
        return next;
    }
};

}  // namespace ornavo::testing
