// SPDX-License-Identifier: MIT
// An info element on its control, with the sample text that stands for what the jukebox would tell.
#pragma once

#include <string>

#include "document/dblayoutelements.h"
#include "platform/picture_box.h"

namespace ornavo {

/// Everything of the element but its place. Makes its scroll speed positive and gives it a font of 10 points
/// if it has none; both stay in the element.
void SetupInfoElement(PictureBox& box, dbLayoutElement& element, bool preview);

/// What the canvas shows for the element's InfoType; "" where it shows nothing.
std::string InfoSampleText(const dbLayoutElement& element);

/// One line, "&" and line breaks as characters, that begins at a place of the box, pixels, which may lie
/// anywhere; nothing for "".
void DrawInfoText(PictureBox& box, std::string_view text, const Point& at);

}  // namespace ornavo
