// SPDX-License-Identifier: MIT
// A whole layout becomes controls on a window.
#pragma once

#include "render/target.h"

namespace ornavo {

/// The canvas: renders the layout's elements as the view switches say, then its corners and its surface.
/// Sizes are the skin's own, in pixels.
void ComposeLayout(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// The preview: renders every element and cuts the window to its shape.
void ComposePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// Makes the form the target again, and nothing more.
void ReleasePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// The renderer: clears the target's controls and composes each element in the order of the collection, the
/// last in front. A call while one runs does nothing. Failures are told in one box at the end.
void RenderElements(bool preview);

}  // namespace ornavo
