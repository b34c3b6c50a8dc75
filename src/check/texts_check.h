// SPDX-License-Identifier: MIT
// Whether texts can be read.
#pragma once

#include "check/loaded_skin.h"

namespace ornavo {

/// Texts of elements that hardly stand out from what is behind them, and texts that are cut, each at the
/// skin's own size and in the least window.
Findings CheckTexts(const LoadedSkin& loaded);

}  // namespace ornavo
