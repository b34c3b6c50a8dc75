// SPDX-License-Identifier: MIT
// An element sized by its picture, and a picture made of what lies behind an element.
#pragma once

#include "base/geometry.h"
#include "canvas/canvas_parts.h"

namespace ornavo {

extern Size PicRealSize;  // natural size of the last picture that ResetToOriginalSize loaded; 0 x 0 at first

/// The selected element takes the natural size of its picture; where that can't be loaded, of the last one
/// that was; where there was none, nothing happens.
void ResetToOriginalSize(CanvasParts& parts);

/// The canvas as it is without the selected element, its handles and the shape's corners and sides becomes a
/// JPEG file of the skin, named after the element, and the element's picture. Nothing changes when the file
/// can't be written.
void UseBackgroundAsPicture(CanvasParts& parts);

}  // namespace ornavo
