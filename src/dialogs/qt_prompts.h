// SPDX-License-Identifier: MIT
// The prompts as dialogs on the screen.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "platform/prompts.h"

namespace ornavo {

/// Shows the dialogs. Each gives the keyboard focus back to the window that it was opened from.
class QtPrompts : public Prompts {
public:
    Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) override;
    std::optional<std::string> Input(std::string_view text, std::string_view title,
                                     std::string_view proposal) override;
    std::optional<std::string> File(const FileQuestion& question) override;
    std::optional<Colour> ColourOf(Colour start, CustomColours& custom) override;
    std::optional<Font> FontOf(const Font& start, const std::vector<std::string>& offered) override;

private:
    QWidget* TakeOwner();

    QPointer<QWidget> owner_;  // of the last dialog
};

/// Qt's name filters: "Name|*.a;*.b" becomes "Name (*.a *.b)". ":" separates like "|".
QStringList NameFilters(std::string_view filter);

}  // namespace ornavo
