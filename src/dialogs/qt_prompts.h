// SPDX-License-Identifier: MIT
// The prompts on real windows.
#pragma once

#include "platform/prompts.h"

namespace ornavo {

class QtPrompts : public Prompts {
public:
    Answer Message(std::string_view text, std::string_view title, Icon icon, Buttons buttons) override;
};

}  // namespace ornavo
