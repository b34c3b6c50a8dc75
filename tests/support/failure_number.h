// SPDX-License-Identifier: MIT
// The failure that a call ends in; its number is 0 if the call ends well.
#pragma once

#include "base/failure.h"

namespace ornavo {

template <class Call>
Failure FailureOf(Call&& call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, "", ""};
}

template <class Call>
int FailureNumber(Call&& call) {
    return FailureOf(call).number();
}

}  // namespace ornavo
