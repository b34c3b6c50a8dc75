// SPDX-License-Identifier: MIT
#include "render/kiosk_panel.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "document/current_skin.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/sample_families.h"
#include "render/search_letters.h"
#include "render/standard_elements.h"
#include "render/style_builders.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr int PictureGap = 4;  // pixels between the picture and its label, and from the picture to its shadow
constexpr int InfoWidth = 40, InfoHeight = 41;
constexpr int Beside = 100, RowsAtLeast = 300;  // pixels free beside a row; width of a row without room
constexpr const char* PictureText = "The Tide Comes Over You!\r\n(Quillmar)\r\n(2002)";

/// The Main element's margins and what follows from them, in pixels; 0 if a value cannot be computed.
struct Measures {
    int marginLeft = 0, marginTop = 0, marginRight = 0, marginBottom = 0;
    int panelLeft = 0, panelTop = 0, panelWidth = 0, panelHeight = 0;
    int pictureSize = 0, songWidth = 0;
};

// Sums are computed as doubles and rounded at the end, so that a value beyond 32 bits fails instead of
// wrapping.
double Real(int number) {
    return number;
}

double Number(std::string_view key) {
    return Pref(key).value.ToDouble();
}

int Length(double pixels) {
    const int whole = ToLong(pixels);
    if (whole < 0) throw Failure(Failure::InvalidValue, "LayoutKioskPanel");
    return whole;
}

Measures Measure(const PictureBox& pMain) {
    Measures m;
    const Rect panel = pMain.Bounds();
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

/// Changes a control's bounds by statements, each of which may fail on its own.
template <class... Statements>
void Place(Control& control, Statements... statements) {
    Rect bounds = control.Bounds();
    (Attempt([&] { statements(bounds); }), ...);
    control.Move(bounds);
}

void PlaceSongs(SamplePanel& sample, const Measures& m) {
    const auto row = [&](Rect& at) { at.left = m.panelLeft; };
    const auto width = [&](Rect& at) { at.width = Length(m.songWidth); };
    Place(sample.but_Song, row, width, [&](Rect& at) { at.top = m.panelTop; });
    sample.but_Song.Refresh();
    const Rect first = sample.but_Song.Bounds();
    Place(
        sample.but_Info,
        [&](Rect& at) { at.left = ToLong(Real(first.left) + m.songWidth + Number("IN_Margin")); },
        [&](Rect& at) {
            at = {at.left, m.panelTop, InfoWidth, InfoHeight};
        },
        [&](Rect& at) { at.width = Length(Number("IN_Width")); },
        [&](Rect& at) { at.height = Length(Number("IN_Height")); });
    Place(sample.but_Song2, row, width,
          [&](Rect& at) { at.top = ToLong(Real(first.top) + first.height + Number("SO_Margin")); });
    sample.but_Song2.Refresh();
}

void SetupLabel(Label& label, std::string_view colourKey) {
    label.ForeColor = Pref(colourKey).value.ToLong();
    label.Font = *GetPrefFont("PI_Font", 8);
    label.Refresh();
}

/// Places the label below the picture, which has these bounds, and its shadow farther by a part of the
/// picture's size.
void PlaceLabels(SamplePanel& sample, const Rect& picture) {
    Label &label = sample.but_Label, &shadow = sample.but_LabelShadow;
    const auto move = [&](Label& one, double left, double top) {
        one.Move({ToLong(left), ToLong(top), picture.width, one.Bounds().height});
    };
    const double below = Real(picture.top) + picture.height + PictureGap;
    move(label, picture.left, below);
    const double factor = Number("PI_FontSizeFactor"), shift = picture.width / 100.0 * factor;
    move(shadow, picture.left + shift, below + shift);
    label.Font.Size = shadow.Font.Size = picture.width / 12.0 * factor;
    const int height = Length(picture.height * Number("PI_HeightFactor"));
    for (Label* one : {&label, &shadow}) {
        const Rect now = one->Bounds();
        one->Move({now.left, now.top, now.width, height});
    }
    label.Alignment = shadow.Alignment = Pref("PI_TextAlign").value.ToLong();
}

void ShowLabels(SamplePanel& sample) {
    Label &label = sample.but_Label, &shadow = sample.but_LabelShadow;
    label.Caption = shadow.Caption = PictureText;
    label.Refresh();
    shadow.Refresh();
    const bool isSeen = Number("PI_HeightFactor") > 1;
    label.setVisible(isSeen);
    shadow.setVisible(isSeen && Pref("PI_TextShadow").value.ToBoolean());
}

/// Sets up the album picture, a square of `size` pixels at x, y, with its shadow, its label and the button in
/// its corner. A failure ends it, and what would come after stays unchanged.
void SetupPictures(SamplePanel& sample, int size, int x, int y) {
    TileButton& picture = sample.but_Picture;
    picture.State.ShowBorder = Pref("PI_PictureBorder").value.ToBoolean();
    picture.State.BorderColor = Pref("PI_PictureBorderColor").value.ToLong();
    SetupLabel(sample.but_Label, "PI_TextColor");
    SetupLabel(sample.but_LabelShadow, "PI_TextShadowColor");
    picture.Move({x, y, size, size});
    sample.but_Shadow.Move({ToLong(Real(x) + PictureGap), ToLong(Real(y) + PictureGap), size, size});
    PlaceLabels(sample, {x, y, size, size});
    picture.RefreshElements();
    picture.setVisible(true);
    sample.but_Shadow.setVisible(Pref("PI_PictureShadow").value.ToBoolean());
    sample.but_Shadow.SetBackColor(Pref("PI_PictureShadowColor").value.ToLong());
    ShowLabels(sample);
    const Rect button = sample.but_AddAll.Bounds();
    sample.but_AddAll.Move({ToLong(Real(x) + size - button.width + 1), ToLong(Real(y) + size - button.height),
                            button.width, button.height});
    sample.but_AddAll.setVisible(true);
    sample.but_AddAll.ZOrder();
}

}  // namespace

void LayoutKioskPanel() {
    LayoutHost& host = TargetForm->host();
    SamplePanel& sample = host.sample;
    const Measures m = Measure(host.pMain);
    Place(sample.lbl_Kiosk, [&](Rect& at) { at.top = FloorToLong(m.panelHeight / 2.0); });
    Place(sample.lbl_KioskShadow, [&](Rect& at) { at.top = FloorToLong(m.panelHeight / 2.0) + 1; });
    Attempt([&] {
        SetupPictures(sample, m.pictureSize, ToLong(Real(m.panelWidth) - m.pictureSize - m.marginRight),
                      m.marginTop);
    });
    PlaceSongs(sample, m);
    for (dbLine& line : sample.kLine) line.SetX2(m.panelWidth);
    sample.kLine[1].SetY1(m.panelHeight);
    sample.kLine[1].SetY2(m.panelHeight);
    Place(
        sample.pKeyb, [&](Rect& at) { at.left = m.panelLeft; },
        [&](Rect& at) { at.top = ToLong(Real(m.panelHeight) - at.height + m.marginTop); });
    host.ScrollBar.Refresh();
    host.Scrollframe.Refresh();
}

void SetupKioskPanel() {
    LayoutHost& host = TargetForm->host();
    SamplePanel& sample = host.sample;
    sample.but_Picture.Picture = SampleAlbum();
    for (const SampleFamily& family : SampleFamilies()) StyleButton(sample, family);
    if (const dbLayoutElementRef bar = objCurrentLayout->dbLayoutElements->Find("Scrollbar"))
        SetupScrollBar(host.ScrollBar, *bar);
    SetupSearchBox(host.tbx_Search);
    SetupKioskLabels();
    TargetForm->ShowForm();
    SetupSearchLetters();
}

}  // namespace ornavo
