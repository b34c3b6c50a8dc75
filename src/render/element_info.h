// SPDX-License-Identifier: MIT
// Shows an info element on its control, with a sample of the jukebox's text.
#pragma once

#include <string>

#include "document/dblayoutelements.h"
#include "platform/picture_box.h"
#include "render/view.h"

namespace ornavo {

/// Sets everything but the place. Changes the element: its scroll speed becomes positive, and it gets a font
/// of 10 points if it has none.
void SetupInfoElement(PictureBox& box, dbLayoutElement& element, View view);

/// The text on the canvas for the element's InfoType; "" if there is none.
std::string InfoSampleText(const dbLayoutElement& element);

/// Draws one line of text whose top left is at a point of the box, in pixels; the point may be outside. "&"
/// and line breaks have no special meaning.
void DrawInfoText(PictureBox& box, std::string_view text, const Point& at);

}  // namespace ornavo
