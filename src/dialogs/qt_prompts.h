// SPDX-License-Identifier: MIT
// The prompts on real windows.
#pragma once

#include <QStringList>

#include "platform/prompts.h"

namespace ornavo {

class QtPrompts : public Prompts {
public:
    Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) override;
    std::optional<std::string> Input(std::string_view text, std::string_view title,
                                     std::string_view proposal) override;
    std::optional<std::string> File(const FileQuestion& question) override;
    std::optional<Colour> ColourOf(Colour start, CustomColours& custom) override;
    std::optional<Font> FontOf(const Font& start, const std::vector<std::string>& offered) override;
};

/// "Name|*.a;*.b" becomes "Name (*.a *.b)"; ":" separates as "|" does.
QStringList NameFilters(std::string_view filter);

}  // namespace ornavo
