// SPDX-License-Identifier: MIT
// Reads and writes the view switches as settings.
#pragma once

namespace ornavo {

/// A setting that is not of the switch's type leaves the switch unchanged.
void ReadViewSettings();
void WriteViewSettings();

}  // namespace ornavo
