// SPDX-License-Identifier: MIT
// Where a text or a picture stands across its control.
#pragma once

namespace ornavo {

enum AlignmentCode { LeftAligned = 0, RightAligned = 1, Centred = 2 };  // a file may hold any number

}  // namespace ornavo
