// SPDX-License-Identifier: MIT
// Keeps the texts of skins that would otherwise be lost: dropped changes, and damaged files that a save
// replaces.
#pragma once

#include <string>
#include <string_view>

namespace ornavo {

/// Writes the text into the folder "Recovered" of the data folder, where the last ten texts are kept. `stamp`
/// is the time as "2026-01-31 23-59-59-999". Throws a Failure if the text cannot be written.
void KeepRecovered(std::string_view dataFolder, std::string_view skinName, std::string_view stamp,
                   std::string_view bytes);

/// A skin's text without what a composition itself writes into the model: fonts, key colours read from
/// pictures, scroll speeds. For telling whether the user has changed anything.
std::string WithoutDrawnParts(std::string_view text);

}  // namespace ornavo
