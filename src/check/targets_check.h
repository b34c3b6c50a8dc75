// SPDX-License-Identifier: MIT
// Whether fingers meet what can be pressed.
#pragma once

#include "check/loaded_skin.h"

namespace ornavo {

/// Elements that are too small for a finger at the skin's own size or in the least window, and rows of
/// elements that are too close to each other at the skin's own size.
Findings CheckTargets(const LoadedSkin& loaded);

}  // namespace ornavo
