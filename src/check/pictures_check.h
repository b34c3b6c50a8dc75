// SPDX-License-Identifier: MIT
// What is wrong with a skin's pictures.
#pragma once

#include "check/loaded_skin.h"
#include "platform/pictures.h"

namespace ornavo {

/// Reads the pictures of the current skin, which must be the loaded one. More than `most` decoded bytes are
/// told.
Findings CheckPictures(const LoadedSkin& loaded, std::int64_t most = PictureByteLimit / 2);

}  // namespace ornavo
