// SPDX-License-Identifier: MIT
// What naming and deleting a layout does to the current skin. Each step tells what it did; the window shows
// it.
#pragma once

#include <string>
#include <string_view>

namespace ornavo {

/// A layout's name as the file can hold it: what has no character there becomes "?".
std::string StorableLayoutName(std::string_view name);

/// Another name for the layout with the key, which itself stays.
void RenameLayout(std::string_view key, std::string_view name);
/// A new layout with the four corners becomes the current one. If its key is taken the user is told so, and
/// nothing has changed.
bool AddLayout(std::string_view name);
/// Removes the layout with the key after a question. "Standard" is locked. True if it is gone.
bool DeleteLayout(std::string_view key, std::string_view text);

}  // namespace ornavo
