// SPDX-License-Identifier: MIT
// A layout copied within its skin, or into another one. Both save the skin that they write to.
#pragma once

#include <string>
#include <string_view>

#include "project/skin_files.h"

namespace ornavo {

/// The name if no layout of the skin has it, otherwise the name with the first free " (cloned<n>)", n from 2.
std::string GetFreeClonedText(const dbSkin& skin, std::string name);

/// Asks for a name and copies the layout with the key under it; the skin is saved and read again. The key of
/// the copy; "" if nothing came of it, and then the skin is as it was.
std::string CloneLayout(std::string_view key, SkinFiles& files);
/// Asks for a name and a skin, and copies the layout with the key into that skin's file. True if the current
/// skin is the one, and was read again.
bool InsertLayoutToSkin(std::string_view key, SkinFiles& files);

}  // namespace ornavo
