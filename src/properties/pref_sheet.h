// SPDX-License-Identifier: MIT
// The rows of a family of preferences, in the order in which the skin has them.
#pragma once

#include "base/geometry.h"
#include "document/dbskinprefs.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// The preferences "Prefix_..." and "PrefixSuffix_...", with the headings that their captions call for.
void AddSkinProp(Sheet& sheet, const dbSkinPrefs& prefs, std::string_view prefix, std::string_view suffix);
/// The sheet of a sample control at its bounds; of any other control an empty one.
Sheet SampleSheet(const dbSkinPrefs& prefs, std::string_view controlName, const Rect& bounds);

}  // namespace ornavo
