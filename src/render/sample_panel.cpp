// SPDX-License-Identifier: MIT
#include "render/sample_panel.h"

namespace ornavo {
namespace {

constexpr Colour GuideColour = Rgb(128, 128, 128);
constexpr Rect CaptionPlace = {64, 0, 0, 0};  // its top and size come with the layout and the text
constexpr const char* Caption = "Songs by Artist";
constexpr int AddAllSize = 40;
constexpr int KeyHeight = 32, KeyGap = 4;  // a key's caption starts 3 pixels below its top

}  // namespace

SamplePanel::SamplePanel(QWidget& window, ControlEvents* events)
    : listener(events),
      pMain(*Listening(new PictureBox(&window, "pMain"))),
      kLine{new dbLine(&pMain, "kLine", 0), new dbLine(&pMain, "kLine", 1)},
      lbl_KioskShadow(*new Label(&pMain, "lbl_KioskShadow")),
      lbl_Kiosk(*new Label(&pMain, "lbl_Kiosk")),
      but_Shadow(*new PictureBox(&pMain, "but_Shadow")),
      but_Picture(*new TileButton(&pMain, "but_Picture")),
      but_LabelShadow(*new Label(&pMain, "but_LabelShadow")),
      but_Label(*new Label(&pMain, "but_Label")),
      but_Song(*new TileButton(&pMain, "but_Song")),
      but_Song2(*new TileButton(&pMain, "but_Song2")),
      but_Info(*new TileButton(&pMain, "but_Info")),
      pKeyb(*new Control(&pMain, "pKeyb")),
      KeyU(*new TileButton(&pKeyb, "KeyU")),
      KeyN(*new TileButton(&pKeyb, "KeyN")),
      KeyS(*new TileButton(&pKeyb, "KeyS")),
      KeyB(*new TileButton(&pKeyb, "KeyB")),
      KeyE(*new TileButton(&pKeyb, "KeyE")),
      but_AddAll(*new TileButton(&pMain, "but_AddAll")),
      lbl_SL([this](int i) { return Listening(new TileButton(&pMain, "lbl_SL", i)); }) {
    for (Control* clickable :
         std::initializer_list<Control*>{&lbl_Kiosk, &but_Picture, &but_Label, &but_Song, &but_Song2,
                                         &but_Info, &KeyU, &KeyN, &KeyS, &KeyB, &KeyE, &but_AddAll})
        clickable->Listen(listener);
    // What only adorns the panel leaves the mouse to it.
    for (Control* adornment :
         std::initializer_list<Control*>{kLine[0], kLine[1], &lbl_KioskShadow, &but_Shadow, &but_LabelShadow})
        adornment->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (dbLine* line : kLine) line->BorderColor = GuideColour;
    for (Label* caption : {&lbl_Kiosk, &lbl_KioskShadow}) {
        caption->AutoSize = true;
        caption->Caption = Caption;
        caption->Move(CaptionPlace);
    }
    lbl_KioskShadow.Move({CaptionPlace.left + 1, CaptionPlace.top + 1, 0, 0});
    but_AddAll.Move({0, 0, AddAllSize, AddAllSize});
    but_Picture.State.ShowSmooth = true;
    PlaceKeys();
}

/// In a row, as on a keyboard. Between the keys the strip is cut out, so that the panel shows and is hit.
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
