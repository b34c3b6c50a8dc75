// SPDX-License-Identifier: MIT
// Opens the skin and the layout that the command line names.
#pragma once

#include <limits>

#include "base/geometry.h"
#include "cli/commands.h"
#include "document/current_skin.h"

namespace ornavo {

/// Opens the skin as the current one: by a path, or else by its name in the user's "Skins". Failure 53 if
/// there is no settings file. `upgraded` adds the preferences that its file lacks.
void OpenNamedSkin(const std::string& skin, bool upgraded = true);

/// The layout of --layout, or one by its key. Failure 9 if the skin has no such layout.
dbLayoutRef NamedLayout(const Arguments& arguments);
dbLayoutRef LayoutOf(const std::string& key);

/// The size of --size in pixels, or the skin's size without it. UsageError unless --size is "WxH" with 1 to
/// `most` each.
Size NamedSize(const Arguments& arguments, int most = std::numeric_limits<int>::max());
Size SizeOf(std::string_view text, int most);  // "WxH"

}  // namespace ornavo
