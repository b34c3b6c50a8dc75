// SPDX-License-Identifier: MIT
// Shows a button, picture or volume element on its control.
#pragma once

#include "document/dblayoutelements.h"
#include "platform/tile_button.h"
#include "render/view.h"

namespace ornavo {

/// Sets everything but the place: pictures, caption, border, transparency, rotation, pointer. With
/// UseTopLeftTransparency the element gets the colour of the picture's top left pixel.
void SetupElementButton(TileButton& button, dbLayoutElement& element, View view);

/// Sets the one text layer of such a button.
void SetupElementCaption(TileButton& button, const dbLayoutElement& element);

/// Sets border, background, key colour and smoothness; the scroll frame and its bar use it too.
void SetupElementGround(TileButton& button, const dbLayoutElement& element);

/// Rotates by the element's angle, 0 for none.
void SetupElementRotation(TileButton& button, const dbLayoutElement& element);

}  // namespace ornavo
