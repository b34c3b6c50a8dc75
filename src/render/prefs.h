// SPDX-License-Identifier: MIT
// Preferences and fonts of the current skin by key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/font.h"
#include "document/dblayoutelements.h"
#include "document/dbskinprefs.h"

namespace ornavo {

/// A preference, and its value as text; Failure where there is no such preference.
dbSkinPref& Pref(std::string_view key);
std::string PrefText(std::string_view key);

/// The whole number that a text stands for, 0 if it stands for none.
int SafeLong(const std::string& text);

/// The font of a preference or an element. Where it has none, a font is made, named by its value, and stored:
/// then the stored one itself is returned, otherwise a copy. Sizes are points.
FontRef GetPrefFont(std::string_view key, double defaultSize);
FontRef GetElementFont(dbLayoutElement& element, double defaultSize);

/// The height of a text layer in this font, pixels.
float TextHeight(const Font& font);

}  // namespace ornavo
