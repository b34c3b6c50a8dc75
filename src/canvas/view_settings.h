// SPDX-License-Identifier: MIT
// The view switches between the settings and the program.
#pragma once

namespace ornavo {

/// A setting that is no number or boolean leaves its switch as it is.
void ReadViewSettings();
void WriteViewSettings();

}  // namespace ornavo
