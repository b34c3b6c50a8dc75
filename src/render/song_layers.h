// SPDX-License-Identifier: MIT
// What stands on the sample's song rows: texts, icons and the stars of a rating.
#pragma once

#include <string_view>

#include "platform/tile_button.h"

namespace ornavo {

enum class SongRow { TwoLines, OneLine };

/// All layers anew.
void SetupSongLayers(TileButton& button, SongRow row);

/// A text layer's font from a preference, and the layer's height with it.
void TakeFont(TileLayer& layer, std::string_view key, double defaultSize);

}  // namespace ornavo
