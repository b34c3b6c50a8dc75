// SPDX-License-Identifier: MIT
// A skin of one's own, for work on the side.
#pragma once

#include <string>

#include "document/dbskin.h"

namespace ornavo {

/// A copy that shares nothing with the skin.
dbSkinRef DeepCopy(const dbSkin& skin);

/// The bytes that a save would write now, if every picture can be copied.
std::string BytesOfSave(const dbSkin& skin, bool keepExisting);

}  // namespace ornavo
