// SPDX-License-Identifier: MIT
// The preferences of a family on the controls of the panel's sample. A statement that fails (a preference is
// missing, a picture can't be read) is left out, and the next one runs.
#pragma once

#include "platform/text_controls.h"
#include "platform/tile_button.h"

namespace ornavo {

struct SampleFamily;

/// Each styles a button of the family and leaves the Refresh to its caller.
void SetupInfoButton(const SampleFamily& family, TileButton& button);
void SetupAddAllButton(const SampleFamily& family, TileButton& button);
void SetupSongButton(const SampleFamily& family, TileButton& button);
void SetupKey(const SampleFamily& family, TileButton& button);
void StyleLetter(const SampleFamily& family, TileButton& button);  // one row of the search letters

void SetupSearchBox(TextBox& box);
void SetupKioskLabels();

}  // namespace ornavo
