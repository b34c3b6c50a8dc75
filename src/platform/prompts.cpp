// SPDX-License-Identifier: MIT
#include "platform/prompts.h"

#include <utility>

#include "base/failure.h"

namespace ornavo {
namespace {

Prompts* answering = nullptr;

}  // namespace

Prompts& prompts() {
    if (!answering) throw Failure(Failure::NothingSet, "Prompts", "There is nobody to ask");
    return *answering;
}

Prompts* UsePrompts(Prompts* answers) {
    return std::exchange(answering, answers);
}

}  // namespace ornavo
