// SPDX-License-Identifier: MIT
// Owner of every control that a layout needs, by the names that the composition uses. Knows no element.
#pragma once

#include "platform/text_controls.h"
#include "render/sample_panel.h"

namespace ornavo {

class LayoutHost {
public:
    /// The controls become children of the window. The listener hears their mouse.
    LayoutHost(QWidget& window, ControlEvents* listener);

    PictureBox pMain;
    SamplePanel sample;  // stands on pMain

private:
    QWidget& window_;
    QWidget cover_;  // never seen; see ClearElements

public:
    Pool<TileButton> Element;
    Pool<PictureBox> pInfo;
    PictureBox pMainBack;  // never shown; holds the panel's background picture
    TextBox tbx_Search;
    TileButton Scrollframe;
    TileButton ScrollBar;

    int GetFreeElement() { return Element.GetFree(); }
    int GetFreeInfo() { return pInfo.GetFree(); }
    /// Every slot freed and hidden, the single controls hidden.
    void ClearElements();
};

}  // namespace ornavo
