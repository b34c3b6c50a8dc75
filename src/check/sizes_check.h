// SPDX-License-Identifier: MIT
// What windows of other sizes than the skin's make of its elements.
#pragma once

#include "check/loaded_skin.h"

namespace ornavo {

/// Elements that begin to cover each other, leave the window, lose their size or are cut away by the window's
/// shape. What is so at the skin's own size is meant so.
Findings CheckSizes(const LoadedSkin& loaded);

}  // namespace ornavo
