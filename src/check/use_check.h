// SPDX-License-Identifier: MIT
// What in a skin can't be used as its designer meant.
#pragma once

#include "check/loaded_skin.h"

namespace ornavo {

Findings CheckUse(const LoadedSkin& loaded);

/// Whether a freshly installed Windows has this face.
bool IsUsualFace(std::string_view face);

}  // namespace ornavo
