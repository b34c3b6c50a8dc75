// SPDX-License-Identifier: MIT
#include "render/kiosk_panel.h"

#include <array>

#include "base/failure.h"
#include "base/numbers.h"
#include "document/current_skin.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/style_builders.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr int PictureGap = 4;  // pixels between the picture and its label, and of its shadow
constexpr int InfoWidth = 40, InfoHeight = 41;
constexpr int Beside = 100, RowsAtLeast = 300;  // pixels of a row: left free beside it, and in place of none
constexpr const char* PictureText = "The Tide Comes Over You!\r\n(Quillmar)\r\n(2002)";

/// The Main element's margins and what follows from them, in pixels; 0 where it can't be told.
struct Measures {
    int marginLeft = 0, marginTop = 0, marginRight = 0, marginBottom = 0;
    int panelLeft = 0, panelTop = 0, panelWidth = 0, panelHeight = 0;
    int pictureSize = 0, songWidth = 0;
};

// Sums are made of real numbers and made whole at the end, so that what is too large fails and does not wrap.
double Real(int number) {
    return number;
}

double Number(std::string_view key) {
    return Pref(key).value.ToDouble();
}

int Length(double pixels) {
    const int whole = ToLong(pixels);
    if (whole < 0) throw Failure(380, "LayoutKioskPanel", "Invalid property value");
    return whole;
}

Measures Measure(const LayoutHost& host) {
    Measures m;
    const Rect panel = host.pMain.Bounds();
    double adSpace = 0;
    Attempt([&] {
        const dbLayoutElement& main = *objCurrentLayout->dbLayoutElements->Item("Main");
        m.marginLeft = main.MarginLeft, m.marginTop = main.MarginTop;
        m.marginRight = main.MarginRight, m.marginBottom = main.MarginBottom;
    });
    Attempt([&] { adSpace = SafeLong(PrefText("SP_KioskAdSpace")); });
    Attempt([&] { m.panelLeft = ToLong(m.marginLeft + Number("SL_Width")); });
    m.panelTop = m.marginTop;
    m.panelWidth = panel.width;
    Attempt([&] { m.panelHeight = ToLong(panel.height - adSpace - m.marginTop - m.marginBottom); });
    Attempt([&] { m.pictureSize = ToLong(m.panelHeight / Number("PI_HeightFactor")); });
    Attempt([&] {
        m.songWidth = ToLong(Real(m.panelWidth) - m.pictureSize - Beside - m.marginRight - m.marginLeft -
                             SafeLong(PrefText("IN_Margin")));
    });
    if (m.songWidth == 0) m.songWidth = RowsAtLeast;
    return m;
}

/// Moves a control by statements on its bounds, each of which may fail by itself.
template <class... Statements>
void Place(Control& control, Statements... statements) {
    Rect bounds = control.Bounds();
    (Attempt([&] { statements(bounds); }), ...);
    control.Move(bounds);
}

void PlaceSongs(LayoutHost& host, const Measures& m) {
    const auto row = [&](Rect& at) { at.left = m.panelLeft; };
    const auto width = [&](Rect& at) { at.width = Length(m.songWidth); };
    Place(host.but_Song, row, width, [&](Rect& at) { at.top = m.panelTop; });
    host.but_Song.Refresh();
    const Rect first = host.but_Song.Bounds();
    Place(
        host.but_Info,
        [&](Rect& at) { at.left = ToLong(Real(first.left) + m.songWidth + Number("IN_Margin")); },
        [&](Rect& at) {
            at = {at.left, m.panelTop, InfoWidth, InfoHeight};
        },
        [&](Rect& at) { at.width = Length(Number("IN_Width")); },
        [&](Rect& at) { at.height = Length(Number("IN_Height")); });
    Place(host.but_Song2, row, width,
          [&](Rect& at) { at.top = ToLong(Real(first.top) + first.height + Number("SO_Margin")); });
    host.but_Song2.Refresh();
}

void SetupLabel(Label& label, std::string_view colourKey) {
    label.ForeColor = Pref(colourKey).value.ToLong();
    label.Font = *GetPrefFont("PI_Font", 8);
}

}  // namespace

void SetupPictures(int size, int x, int y) {
    LayoutHost& host = TargetForm->host();
    TileButton& picture = host.but_Picture;
    const std::array<Label*, 2> labels = {&host.but_Label, &host.but_LabelShadow};
    picture.State.ShowBorder = Pref("PI_PictureBorder").value.ToBoolean();
    picture.State.BorderColor = Pref("PI_PictureBorderColor").value.ToLong();
    SetupLabel(host.but_Label, "PI_TextColor");
    SetupLabel(host.but_LabelShadow, "PI_TextShadowColor");
    picture.Move({x, y, size, size});
    host.but_Shadow.Move({ToLong(Real(x) + PictureGap), ToLong(Real(y) + PictureGap), size, size});
    const double factor = Number("PI_FontSizeFactor"), heightFactor = Number("PI_HeightFactor");
    const double below = Real(y) + size + PictureGap, shift = size / 100.0 * factor;
    const int height = Length(size * heightFactor);
    host.but_Label.Move({x, ToLong(below), size, height});
    host.but_LabelShadow.Move({ToLong(x + shift), ToLong(below + shift), size, height});
    for (Label* label : labels) {
        label->Font.Size = size / 12.0 * factor;
        label->Alignment = Pref("PI_TextAlign").value.ToLong();
        label->Caption = PictureText;
        label->Refresh();
    }
    picture.RefreshElements();
    picture.setVisible(true);
    host.but_Shadow.setVisible(Pref("PI_PictureShadow").value.ToBoolean());
    host.but_Shadow.SetBackColor(Pref("PI_PictureShadowColor").value.ToLong());
    host.but_Label.setVisible(heightFactor > 1);
    host.but_LabelShadow.setVisible(heightFactor > 1 && Pref("PI_TextShadow").value.ToBoolean());
    const Rect button = host.but_AddAll.Bounds();
    host.but_AddAll.Move({ToLong(Real(x) + size - button.width + 1), ToLong(Real(y) + size - button.height),
                          button.width, button.height});
    host.but_AddAll.setVisible(true);
    host.but_AddAll.ZOrder();
}

void LayoutKioskPanel() {
    LayoutHost& host = TargetForm->host();
    const Measures m = Measure(host);
    Place(host.lbl_Kiosk, [&](Rect& at) { at.top = FloorToLong(m.panelHeight / 2.0); });
    Place(host.lbl_KioskShadow, [&](Rect& at) { at.top = FloorToLong(m.panelHeight / 2.0) + 1; });
    Attempt([&] {
        SetupPictures(m.pictureSize, ToLong(Real(m.panelWidth) - m.pictureSize - m.marginRight), m.marginTop);
    });
    PlaceSongs(host, m);
    for (dbLine* line : host.kLine) line->SetX2(m.panelWidth);
    host.kLine[1]->SetY1(m.panelHeight);
    host.kLine[1]->SetY2(m.panelHeight);
    Place(
        host.pKeyb, [&](Rect& at) { at.left = m.panelLeft; },
        [&](Rect& at) { at.top = ToLong(Real(m.panelHeight) - at.height + m.marginTop); });
    host.ScrollBar.Refresh();
    host.Scrollframe.Refresh();
}

void SetupKioskPanel() {
    LayoutHost& host = TargetForm->host();
    host.but_Picture.Picture = SampleAlbum();
    SetupSongButton(host.but_Song, 0);
    SetupSongButton(host.but_Song2, 1);
    SetupAddAllButton(host.but_AddAll);
    SetupInfoButton(host.but_Info);
    if (const dbLayoutElementRef bar = objCurrentLayout->dbLayoutElements->Find("Scrollbar"))
        SetupScrollBar(host.ScrollBar, *bar);
    SetupSearchBox(host.tbx_Search);
    SetupKey(host.KeyN, "KBN");
    SetupKey(host.KeyB, "KBB");
    SetupKey(host.KeyE, "KBE");
    SetupKey(host.KeyU, "KBU");
    SetupKey(host.KeyS, "KBS");
    SetupKioskLabels();
    TargetForm->ShowForm();
    SetupSearchLetters();
}

}  // namespace ornavo
