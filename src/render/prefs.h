// SPDX-License-Identifier: MIT
// Access to preferences and fonts of the current skin by key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/font.h"
#include "document/dblayoutelements.h"
#include "document/dbskinprefs.h"

namespace ornavo {

/// A preference, and its value as text; Failure 9 if there is no such preference.
dbSkinPref& Pref(std::string_view key);
std::string PrefText(std::string_view key);

/// The integer that the text represents, otherwise 0.
int SafeLong(const std::string& text);

/// A copy of the font of a preference or an element. If it has none, a font is made, named by the
/// preference's or element's value, and stored; then the stored object itself is returned. Sizes are points.
FontRef GetPrefFont(std::string_view key, double defaultSize);
FontRef GetElementFont(dbLayoutElement& element, double defaultSize);

/// The height in pixels of a text layer with this font.
float TextHeight(const Font& font);

}  // namespace ornavo
