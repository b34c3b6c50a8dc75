// SPDX-License-Identifier: MIT
// The layers of the sample's song rows: texts, icons and the stars of a rating.
#pragma once

#include <string_view>

#include "platform/tile_button.h"

namespace ornavo {

enum class SongRow { TwoLines, OneLine };

/// Makes all layers of the row anew.
void SetupSongLayers(TileButton& button, SongRow row);

/// Sets a text layer's font from a preference, and the layer's height by the font.
void TakeFont(TileLayer& layer, std::string_view key, double defaultSize);

}  // namespace ornavo
