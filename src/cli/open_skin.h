// SPDX-License-Identifier: MIT
// The skin and the layout that a command line names.
#pragma once

#include "base/geometry.h"
#include "cli/commands.h"
#include "document/current_skin.h"

namespace ornavo {

/// Opens the skin as the current one. Failure 53 if it has no settings file. `upgraded`: with the preferences
/// that its file lacks.
void OpenNamedSkin(const Arguments& arguments, bool upgraded = true);

/// The layout of --layout; Failure 9 if the skin has none of that key.
dbLayoutRef NamedLayout(const Arguments& arguments);

/// The size of --size, else the skin's; pixels. UsageError unless it is "WxH" with 1 to 16384 each.
Size NamedSize(const Arguments& arguments);

}  // namespace ornavo
