// SPDX-License-Identifier: MIT
// The property sheets of preferences, in the order of the skin.
#pragma once

#include "base/geometry.h"
#include "document/dbskinprefs.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// Appends the preferences "Prefix_..." and "PrefixSuffix_..." and inserts the headings "Pictures" and
/// "Misc".
void AddSkinProp(Sheet& sheet, const dbSkinPrefs& prefs, std::string_view prefix, std::string_view suffix);
/// The sheet of a sample control with these bounds; an empty one for any other control.
Sheet SampleSheet(const dbSkinPrefs& prefs, std::string_view controlName, const Rect& bounds);

}  // namespace ornavo
