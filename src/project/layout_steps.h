// SPDX-License-Identifier: MIT
// Naming, adding and deleting a layout of the current skin. The window updates what it shows.
#pragma once

#include <string>
#include <string_view>

namespace ornavo {

/// The layout's name as the file can hold it: characters that the file does not have become "?".
std::string StorableLayoutName(std::string_view name);

/// Renames the layout with this key; the key stays.
void RenameLayout(std::string_view key, std::string_view name);
/// Adds a layout with the four corners and makes it the current one. False, after a message and without any
/// change, if its key exists.
bool AddLayout(std::string_view name);
/// Removes the layout with this key after a question. "Standard" cannot be removed. True if it was removed.
bool DeleteLayout(std::string_view key, std::string_view text);

}  // namespace ornavo
