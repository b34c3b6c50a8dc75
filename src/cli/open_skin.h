// SPDX-License-Identifier: MIT
// The skin and the layout that a command line names.
#pragma once

#include <limits>

#include "base/geometry.h"
#include "cli/commands.h"
#include "document/current_skin.h"

namespace ornavo {

/// Opens the skin as the current one: a path, and where there is none of that name a skin in the user's
/// "Skins". Failure 53 if there is no settings file. `upgraded`: with the preferences that its file lacks.
void OpenNamedSkin(const Arguments& arguments, bool upgraded = true);

/// The layout of --layout; Failure 9 if the skin has none of that key.
dbLayoutRef NamedLayout(const Arguments& arguments);

/// The size of --size, else the skin's; pixels. UsageError unless the first is "WxH" with 1 to `most` each.
Size NamedSize(const Arguments& arguments, int most = std::numeric_limits<int>::max());

}  // namespace ornavo
