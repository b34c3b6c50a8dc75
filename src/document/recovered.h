// SPDX-License-Identifier: MIT
// The texts of skins that would be lost otherwise: those of dropped changes, and of damaged files that a save
// replaces.
#pragma once

#include <string>
#include <string_view>

namespace ornavo {

/// Puts the text whole into "Recovered" under the data folder, where the last ten are kept. `stamp` is the
/// time as "2026-01-31 23-59-59-999". Failure if it can't.
void KeepRecovered(std::string_view dataFolder, std::string_view skinName, std::string_view stamp,
                   std::string_view bytes);

/// A skin's text without what a composition writes into the model by itself: fonts made where there were
/// none, key colours read back from pictures, the amount of a scrolling.
std::string WithoutDrawnParts(std::string_view text);

}  // namespace ornavo
