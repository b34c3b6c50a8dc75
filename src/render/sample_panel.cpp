// SPDX-License-Identifier: MIT
#include "render/sample_panel.h"

namespace ornavo {
namespace {

constexpr Colour GuideColour = Rgb(128, 128, 128);
constexpr Rect CaptionPlace = {64, 0, 0, 0};  // its top and size are set by the layout and the text
constexpr const char* PanelCaption = "Songs by Artist";
constexpr int AddAllSize = 40;
constexpr int KeyHeight = 32, KeyGap = 4;  // pixels

}  // namespace

SamplePanel::SamplePanel(PictureBox& panel, ControlEvents* listener)
    : pMain(panel), lbl_SL([&panel, listener](int i) {
          auto* row = new TileButton(&panel, "lbl_SL", i);
          row->Listen(listener);
          row->setVisible(false);
          return row;
      }) {
    for (Control* control : panel.findChildren<Control*>()) control->Listen(listener);
    // Decorations pass the mouse to the panel.
    for (Control* adornment : std::initializer_list<Control*>{&kLine[0], &kLine[1], &lbl_KioskShadow,
                                                              &but_Shadow, &but_LabelShadow})
        adornment->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (dbLine& line : kLine) line.BorderColor = GuideColour;
    for (Label* caption : {&lbl_Kiosk, &lbl_KioskShadow}) {
        caption->AutoSize = true;
        caption->Caption = PanelCaption;
        caption->Move(CaptionPlace);
    }
    lbl_KioskShadow.Move({CaptionPlace.left + 1, CaptionPlace.top + 1, 0, 0});
    but_AddAll.Move({0, 0, AddAllSize, AddAllSize});
    but_Picture.State.ShowSmooth = true;
    PlaceKeys();
}

/// Places the keys in a row. The strip is cut out between the keys, so that the panel is visible and can be
/// clicked there.
void SamplePanel::PlaceKeys() {
    const std::pair<TileButton*, int> row[] = {
        {&KeyU, 56}, {&KeyN, 44}, {&KeyS, 132}, {&KeyB, 56}, {&KeyE, 80}};
    int left = 0;
    for (const auto& [key, width] : row) {
        key->Move({left, 0, width, KeyHeight});
        left += width + KeyGap;
    }
    pKeyb.Move({0, 0, left - KeyGap, KeyHeight});
    pKeyb.setMask(pKeyb.childrenRegion());
}

}  // namespace ornavo
