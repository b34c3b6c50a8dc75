// SPDX-License-Identifier: MIT
// Owns all controls that a layout needs, under the names that the composition uses. Knows no element.
#pragma once

#include "platform/text_controls.h"
#include "render/sample_panel.h"

namespace ornavo {

/// The controls of a layout on one window.
class LayoutHost {
public:
    /// The controls become children of the window; the listener gets their mouse events.
    LayoutHost(QWidget& window, ControlEvents* listener);

    PictureBox pMain;
    SamplePanel sample;  // on pMain

private:
    QWidget& window_;
    QWidget cover_;  // invisible; used by ClearElements

public:
    Pool<TileButton> Element;
    Pool<PictureBox> pInfo;
    PictureBox pMainBack;  // never visible; holds the panel's background picture
    TextBox tbx_Search;
    TileButton Scrollframe;
    TileButton ScrollBar;

    int GetFreeElement() { return Element.GetFree(); }
    int GetFreeInfo() { return pInfo.GetFree(); }
    /// Frees and hides all slots of the pools and hides the single controls.
    void ClearElements();
};

}  // namespace ornavo
