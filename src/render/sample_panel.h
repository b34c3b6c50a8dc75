// SPDX-License-Identifier: MIT
// The controls of the sample of the jukebox's list panel, on `pMain`, before a skin styles and places them.
#pragma once

#include <array>

#include "platform/dbline.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/pool.h"
#include "platform/tile_button.h"
#include "render/kiosk_icons.h"

namespace ornavo {

/// The sample's controls, in the order from back to front.
struct SamplePanel {
    /// The listener gets the mouse events of all controls.
    SamplePanel(PictureBox& panel, ControlEvents* listener);

    PictureBox& pMain;
    std::array<dbLine, 2> kLine{dbLine(&pMain, "kLine", 0), dbLine(&pMain, "kLine", 1)};
    Label lbl_KioskShadow{&pMain, "lbl_KioskShadow"};
    Label lbl_Kiosk{&pMain, "lbl_Kiosk"};
    PictureBox but_Shadow{&pMain, "but_Shadow"};
    TileButton but_Picture{&pMain, "but_Picture"};
    Label but_LabelShadow{&pMain, "but_LabelShadow"};
    Label but_Label{&pMain, "but_Label"};
    TileButton but_Song{&pMain, "but_Song"};
    TileButton but_Song2{&pMain, "but_Song2"};
    TileButton but_Info{&pMain, "but_Info"};
    Control pKeyb{&pMain, "pKeyb"};  // holds the keys; cut out between them
    TileButton KeyU{&pKeyb, "KeyU"};
    TileButton KeyN{&pKeyb, "KeyN"};
    TileButton KeyS{&pKeyb, "KeyS"};
    TileButton KeyB{&pKeyb, "KeyB"};
    TileButton KeyE{&pKeyb, "KeyE"};
    TileButton but_AddAll{&pMain, "but_AddAll"};
    Pool<TileButton> lbl_SL;  // one per row of letters; slot 0 is hidden
    ImageList img_Kiosk;

private:
    void PlaceKeys();
};

}  // namespace ornavo
