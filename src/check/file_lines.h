// SPDX-License-Identifier: MIT
// What the lines of a skin's file come to, and what the next save drops or changes of them.
#pragma once

#include "check/finding.h"
#include "check/loaded_skin.h"

namespace ornavo {

/// References to pictures aren't among it: a save may copy and rename them, which is a matter of its own.
Findings CheckLines(const LoadedSkin& loaded);

}  // namespace ornavo
