// SPDX-License-Identifier: MIT
#include "platform/prompts.h"

#include "base/failure.h"

namespace ornavo {
namespace {

Prompts* current = nullptr;

}  // namespace

Prompts& prompts() {
    if (!current) throw Failure(Failure::NothingSet, "Prompts", "There is nobody to ask");
    return *current;
}

void UsePrompts(Prompts* answers) {
    current = answers;
}

}  // namespace ornavo
