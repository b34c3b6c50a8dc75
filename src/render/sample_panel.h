// SPDX-License-Identifier: MIT
// The sample of the jukebox's list panel: the controls that stand on `pMain`, as they are before a skin has
// styled and placed them.
#pragma once

#include <array>

#include "platform/dbline.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/pool.h"
#include "platform/tile_button.h"
#include "render/kiosk_icons.h"

namespace ornavo {

struct SamplePanel {
    /// The controls become children of the window, the panel, and the strip of keys; all are freed with it.
    SamplePanel(QWidget& window, ControlEvents* events);

    ControlEvents* const listener;  // before the pool, which uses it
    PictureBox& pMain;
    std::array<dbLine*, 2> kLine;
    Label &lbl_KioskShadow, &lbl_Kiosk;
    Control& but_Shadow;
    TileButton& but_Picture;
    Label &but_LabelShadow, &but_Label;
    TileButton &but_Song, &but_Song2, &but_Info;
    Control& pKeyb;  // holds the keys; what it shows of itself is nothing
    TileButton &KeyU, &KeyN, &KeyS, &KeyB, &KeyE;
    TileButton& but_AddAll;
    Pool<TileButton> lbl_SL;  // a row of letters each; slot 0 is hidden
    ImageList img_Kiosk;

    template <class T>
    T* Listening(T* control) const {
        control->Listen(listener);
        control->setVisible(false);
        return control;
    }

private:
    void PlaceKeys();
};

}  // namespace ornavo
