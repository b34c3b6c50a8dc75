// SPDX-License-Identifier: MIT
// Owner of every control that a layout needs, by the names that the composition uses. Knows no element.
#pragma once

#include "platform/picture_box.h"
#include "platform/pool.h"
#include "platform/text_controls.h"
#include "platform/tile_button.h"

namespace ornavo {

class LayoutHost {
public:
    /// The controls become children of the window and are freed with it. The listener hears their mouse.
    LayoutHost(QWidget& window, ControlEvents* listener);

private:
    QWidget& window_;
    QWidget& cover_;  // never seen; see ClearElements
    ControlEvents* listener_;  // before the pools, which use it

public:
    Pool<TileButton> Element;
    Pool<PictureBox> pInfo;
    PictureBox& pMain;
    PictureBox& pMainBack;  // never shown; holds the panel's background picture
    TextBox& tbx_Search;
    TileButton& Scrollframe;
    TileButton& ScrollBar;

    int GetFreeElement() { return Element.GetFree(); }
    int GetFreeInfo() { return pInfo.GetFree(); }
    /// Every slot freed and hidden, the single controls hidden.
    void ClearElements();

private:
    template <class T>
    T* Listening(T* control) const {
        control->Listen(listener_);
        control->setVisible(false);
        return control;
    }
};

}  // namespace ornavo
