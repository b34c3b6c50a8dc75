// SPDX-License-Identifier: MIT
// A family of the sample panel: a control or several equal ones, and the preferences that style them.
#pragma once

#include <string_view>

#include "render/sample_panel.h"

namespace ornavo {

enum class HeadingSize { Untold, Told };  // whether the sheet's heading ends in the control's size

/// What must be redrawn after an edit of a preference.
enum class Redraw {
    Layout,   // the whole layout: no control shows the preference
    Panel,    // the canvas's background and the sample
    Button,   // only this control
    Places,   // the controls with the same prefix, and all places
    Letters,  // all places, then the letters
    Labels    // the captions
};

/// The text layer of a button.
struct SampleCaption {
    std::string_view text;                // used if there is no textKey
    std::string_view textKey, fontKey{};  // keys of the preferences
    double fontSize = 0;                  // points, of a font made on first use
};

/// A row of the table in render/sample_families.
struct SampleFamily {
    std::string_view control;         // the name of the control or of its pool
    std::string_view prefix, suffix;  // its preferences are "PREFIX_..." and "PREFIXSUFFIX_..."
    std::string_view heading;         // of the property sheet
    HeadingSize headingSize;
    Redraw redraw;
    TileButton SamplePanel::*button = nullptr;
    void (*style)(const SampleFamily&, TileButton&) = nullptr;  // the caller must call Refresh
    SampleCaption caption = {};
    Pool<TileButton> SamplePanel::*pool = nullptr;  // instead of `button`
    std::string_view label{};                       // the name of another control of this family
};

}  // namespace ornavo
