// SPDX-License-Identifier: MIT
// The preferences on the sample controls of the jukebox's panel: one builder for each family. A statement
// that fails (a preference that is missing, a picture that can't be read) is left out, and the next one runs.
#pragma once

#include <string_view>

#include "platform/text_controls.h"
#include "platform/tile_button.h"

namespace ornavo {

void SetupInfoButton(TileButton& button);
void SetupAddAllButton(TileButton& button);
/// Mode 0 is the row of two lines, mode 1 that of one.
void SetupSongButton(TileButton& button, int mode);
/// `prefix` is "KBN", "KBB", "KBE", "KBU" or "KBS".
void SetupKey(TileButton& button, std::string_view prefix);
/// One row of the search letters; StyleLetter leaves the Refresh to its caller.
void SetupLetterStyle(TileButton& button);
void StyleLetter(TileButton& button);
void SetupSearchBox(TextBox& box);
void SetupKioskLabels();

/// The key colour of an edit of `prefix` + "_TransparentColor" is the preference's: the family's controls
/// take it when they are next styled, also where they would give their own to the preference. Without a
/// prefix the scroll bar, whose colour is its element's.
void TakeTransparentColor(std::string_view prefix);

}  // namespace ornavo
