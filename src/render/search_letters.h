// SPDX-License-Identifier: MIT
// The column of letters at the left of the panel: 26 letters and a filler below them.
#pragma once

namespace ornavo {

/// Places and styles the column.
void SetupSearchLetters();

}  // namespace ornavo
