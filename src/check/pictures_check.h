// SPDX-License-Identifier: MIT
// What is wrong with a skin's pictures.
#pragma once

#include "check/loaded_skin.h"

namespace ornavo {

/// Reads the pictures of the current skin, which must be the loaded one.
Findings CheckPictures(const LoadedSkin& loaded);

}  // namespace ornavo
