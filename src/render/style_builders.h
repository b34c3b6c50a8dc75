// SPDX-License-Identifier: MIT
// Styles the controls of the sample panel by the preferences of their family. A step that fails, because a
// preference is missing or invalid, is skipped.
#pragma once

#include "platform/text_controls.h"
#include "platform/tile_button.h"

namespace ornavo {

struct SampleFamily;

/// Each styles a button of the family; the caller must call Refresh.
void SetupInfoButton(const SampleFamily& family, TileButton& button);
void SetupAddAllButton(const SampleFamily& family, TileButton& button);
void SetupSongButton(const SampleFamily& family, TileButton& button);
void SetupKey(const SampleFamily& family, TileButton& button);
void StyleLetter(const SampleFamily& family, TileButton& button);  // one row of the search letters

/// Style the search box, and the captions of the panel.
void SetupSearchBox(TextBox& box);
void SetupKioskLabels();

}  // namespace ornavo
