// SPDX-License-Identifier: MIT
// One element of the composed layout shown anew after an edit, the others left alone.
#pragma once

#include "document/dblayoutelements.h"

namespace ornavo {

class Control;

/// The control that shows the element, on the target. One without a size, which has none, gets a hidden one
/// that it keeps until the next composition. Its Tag is the element's key.
Control& ControlOf(dbLayoutElement& element);

/// By the same steps as a composition. An element whose width or height is below 1 loses its control's Tag
/// and is hidden, if it is a button, a picture, a volume or an info. Draws nothing for other types than 0
/// to 6.
void RedrawElement(dbLayoutElement& element);

}  // namespace ornavo
