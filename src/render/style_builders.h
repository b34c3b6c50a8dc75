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
/// One row of the search letters.
void SetupLetterStyle(TileButton& button);
void SetupSearchBox(TextBox& box);
void SetupKioskLabels();

}  // namespace ornavo
