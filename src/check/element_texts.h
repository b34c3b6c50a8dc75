// SPDX-License-Identifier: MIT
// The texts of a composed layout's elements, with samples for those that the jukebox fills.
#pragma once

#include <string>
#include <vector>

#include "render/layout_picture.h"

namespace ornavo {

/// A line of text on the control of a button, picture, dial or info element.
struct ElementText {
    dbLayoutElementRef element;  // the picture's own
    Control* control;
    std::string text;
    Font font;
    Rect line;  // as high as the font, in pixels of the control, which may clip it
    int room;   // the width that is seen of it
    bool scrolls;
    bool IsButton() const;  // its control has a picture for each state
};

/// The visible elements with a text.
std::vector<ElementText> TextsOf(LayoutPicture& picture);

/// Draws the elements anew and begins the playback; the panel isn't touched.
void RedrawTexts(LayoutPicture& picture, const std::vector<ElementText>& texts);

}  // namespace ornavo
