// SPDX-License-Identifier: MIT
// What an edit has changed of the composed layout is shown anew, the rest left alone.
#pragma once

#include "document/dblayoutelements.h"

namespace ornavo {

class Control;
struct SampleFamily;

/// The control that shows the element, on the target. One without a size, which has none, gets a hidden one
/// that it keeps until the next composition. Its Tag is the element's key.
Control& ControlOf(dbLayoutElement& element);

/// By the same steps as a composition. An element whose width or height is below 1 loses its control's Tag
/// and is hidden, if it is a button, a picture, a volume or an info. Draws nothing for other types than 0
/// to 6.
void RedrawElement(dbLayoutElement& element);

/// What the preferences of the family say. False where only a composition shows it.
bool RedrawSample(const SampleFamily& family);

}  // namespace ornavo
