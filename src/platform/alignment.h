// SPDX-License-Identifier: MIT
// The horizontal alignment of a text or a picture in its control.
#pragma once

namespace ornavo {

enum AlignmentCode { LeftAligned = 0, RightAligned = 1, Centred = 2 };  // a file may contain any other number

}  // namespace ornavo
