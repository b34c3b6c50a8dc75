// SPDX-License-Identifier: MIT
// Opening a skin by name or path, saving it, and the question at the end.
#pragma once

#include <string>
#include <string_view>

#include "editor/windows.h"

namespace ornavo {

/// Where a skin lies: BasePath + SkinName is its folder.
struct SkinPlace {
    std::string basePath;  // ends in a separator
    std::string skinName;
};

/// A text with a separator, or one that names a folder or file here by a path, is a skin's folder or its
/// settings file; any other text is the name of a folder under `ownFolder` + "Skins".
SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder);

/// Replaces the current skin and layout by the one at the place, shows its first layout and brings the window
/// to its size. A skin without a file is opened empty.
void OpenSkin(const SkinPlace& place, Canvas& canvas);

/// Asks whether a changed skin is to be saved, and saves it on Yes. A failed save is told. False after
/// Cancel.
bool AskToSaveSkin();

}  // namespace ornavo
