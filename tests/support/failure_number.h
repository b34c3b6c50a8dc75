// SPDX-License-Identifier: MIT
// The number of the failure that a call ends in, 0 if it ends well.
#pragma once

#include "base/failure.h"

namespace ornavo {

template <class Call>
int FailureNumber(Call&& call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.number();
    }
    return 0;
}

}  // namespace ornavo
