// SPDX-License-Identifier: MIT
// A family of the panel's sample: a control, or several like ones, and the preferences that style it.
#pragma once

#include <string_view>

#include "render/sample_panel.h"

namespace ornavo {

enum class HeadingSize { Untold, Told };  // whether the heading of the sheet ends in the control's size

/// What is drawn anew after an edit of a preference.
enum class Redraw {
    Layout,   // all of it: no control shows the preference
    Panel,    // the canvas's ground and the sample
    Button,   // this control
    Places,   // the controls with the same prefix, and every place
    Letters,  // every place, then the letters
    Labels    // the captions
};

/// The one text layer of a button.
struct SampleCaption {
    std::string_view text;                // shown where no preference holds it
    std::string_view textKey, fontKey{};  // of the preferences
    double fontSize = 0;                  // of a font made on first use, points
};

struct SampleFamily {
    std::string_view control;         // the name of the control or of its pool
    std::string_view prefix, suffix;  // its preferences are "PREFIX_..." and "PREFIXSUFFIX_..."
    std::string_view heading;         // of the sheet
    HeadingSize headingSize;
    Redraw redraw;
    TileButton SamplePanel::*button = nullptr;
    void (*style)(const SampleFamily&, TileButton&) = nullptr;  // leaves the Refresh to its caller
    SampleCaption caption = {};
    Pool<TileButton> SamplePanel::*pool = nullptr;  // in place of `button`
    std::string_view label{};                       // the name of a control that stands for the same family
};

}  // namespace ornavo
