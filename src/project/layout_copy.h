// SPDX-License-Identifier: MIT
// Copies a layout within its skin or into another skin. Both functions save the skin they change.
#pragma once

#include <string>
#include <string_view>

#include "project/skin_files.h"

namespace ornavo {

/// The name if no layout of the skin has it; otherwise the name with the first free " (cloned<n>)", n from 2.
std::string GetFreeClonedText(const dbSkin& skin, std::string name);

/// Asks for a name and copies the layout with this key; the skin is saved and read again. Returns the key of
/// the copy, or "" if the user cancelled or nothing was saved; the skin is then as it was.
std::string CloneLayout(std::string_view key, SkinFiles& files);
/// Asks for a name and a skin, and copies the layout with this key into that skin's file. True if that is the
/// current skin, which has then been read again.
bool InsertLayoutToSkin(std::string_view key, SkinFiles& files);

}  // namespace ornavo
