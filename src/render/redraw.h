// SPDX-License-Identifier: MIT
// Redraws the part of the composed layout that an edit has changed.
#pragma once

#include "document/dblayoutelements.h"

namespace ornavo {

class Control;
struct SampleFamily;

/// The target's control for the element, with its Tag set to the element's key. An element without a size
/// gets a hidden control, which it keeps until the next composition.
Control& ControlOf(dbLayoutElement& element);

/// Redraws the element as a composition would. A button, picture, volume or info whose width or height is
/// below 1 is hidden and its control's Tag emptied. Does nothing for types other than 0 to 6, or while
/// elements are hidden.
void RedrawElement(dbLayoutElement& element);

/// Redraws the controls of the family by its preferences. False if a whole composition is needed.
bool RedrawSample(const SampleFamily& family);

}  // namespace ornavo
