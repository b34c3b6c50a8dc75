// SPDX-License-Identifier: MIT
// A button, picture or volume element on its control.
#pragma once

#include "document/dblayoutelements.h"
#include "platform/tile_button.h"

namespace ornavo {

/// Everything of the element but its place: pictures, caption, border, transparency, rotation, pointer.
/// Writes the colour that the picture's top left pixel gave back to the element.
void SetupElementButton(TileButton& button, dbLayoutElement& element, bool preview);

/// The one layer of such a button.
void SetupElementCaption(TileButton& button, const dbLayoutElement& element);

/// Border, ground, key colour and smoothness, as the scroll frame and its bar have them too.
void SetupElementGround(TileButton& button, const dbLayoutElement& element);

/// Turned by the element's angle, or not at all.
void SetupElementRotation(TileButton& button, const dbLayoutElement& element);

}  // namespace ornavo
