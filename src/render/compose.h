// SPDX-License-Identifier: MIT
// Composes a whole layout: turns its elements into controls on a window.
#pragma once

#include "render/target.h"
#include "render/view.h"

namespace ornavo {

/// For the canvas: composes the layout's elements by the view switches, then shows its corners and its
/// surface. Sizes are the skin's own, in pixels.
void ComposeLayout(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// For the preview: composes every element and cuts the window to the layout's shape.
void ComposePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// Makes the form the target again without composing it.
void ReleasePreview(CompositionTarget& form, dbLayoutRef layout, int skinWidth, int skinHeight);

/// Clears the target's controls and composes each element in the order of the collection, the last one in
/// front. A nested call does nothing. All failures are shown in one box at the end.
void RenderElements(View view);

}  // namespace ornavo
