// SPDX-License-Identifier: MIT
// Preferences and fonts of the current skin by key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/font.h"
#include "document/dblayoutelements.h"

namespace ornavo {

/// The value of a preference as text; Failure where there is no such preference.
std::string PrefText(std::string_view key);

/// The font of a preference or an element. Where it has none, a font is made, named by its value, and stored:
/// then the stored one itself is returned, otherwise a copy. Sizes are points.
FontRef GetPrefFont(std::string_view key, double defaultSize);
FontRef GetElementFont(dbLayoutElement& element, double defaultSize);

}  // namespace ornavo
