// SPDX-License-Identifier: MIT
// Menu items that concern an element's picture.
#pragma once

#include "base/geometry.h"
#include "canvas/canvas_parts.h"

namespace ornavo {

extern Size PicRealSize;  // size in pixels of the last picture ResetToOriginalSize loaded; 0 x 0 at first

/// Gives the selected element the size of its picture; if that cannot be loaded, the size of the last one
/// that could. Does nothing if there was none.
void ResetToOriginalSize(CanvasParts& parts);

/// Saves the canvas behind the selected element, without handles, corners and sides, as a JPEG file of the
/// skin named after the element, and makes it the element's picture. Failure, with nothing changed, if the
/// file cannot be written.
void UseBackgroundAsPicture(CanvasParts& parts);

}  // namespace ornavo
