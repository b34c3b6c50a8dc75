// SPDX-License-Identifier: MIT
// Everything that can be said about a skin.
#pragma once

#include "check/finding.h"
#include "document/dbskin.h"

namespace ornavo {

/// Checks the skin whose file is found by BasePath and SkinName; the current skin must be the same. The
/// errors come first. Throws a Failure if the file can't be read.
Findings CheckSkin(const dbSkin& skin);

}  // namespace ornavo
