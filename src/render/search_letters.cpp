// SPDX-License-Identifier: MIT
#include "render/search_letters.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/sample_families.h"
#include "render/skin_picture.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr int Letters = 26, SelectedRow = 20;

/// Frees and hides the slots from 1.
void HideLetters(Pool<TileButton>& pool) {
    for (int slot = 1; slot <= pool.Top(); ++slot) {
        pool[slot].setVisible(false);
        pool[slot].Tag.clear();
    }
}

int GetFreeLetter(Pool<TileButton>& pool) {
    for (int slot = 1; slot <= pool.Top(); ++slot)
        if (pool[slot].isHidden()) return slot;
    return pool.Load();
}

/// The measures of the column, in pixels.
struct Column {
    const SampleFamily& letters;
    int height = 0;     // of all rows together
    int rowHeight = 0;  // of one letter
    int border = 0;
    double fontSize = 0;
};

Column MeasureColumn(const LayoutHost& host) {
    Column column = {*FindSample("lbl_SL")};
    const double panelHeight = host.pMain.Bounds().height;
    Attempt([&] { column.height = ToLong(panelHeight - SafeLong(PrefText("SP_KioskAdSpace"))); });
    column.rowHeight = FloorToLong((column.height - 1.0) / Letters);
    Attempt([&] { column.border = Pref("SL_ShowBorder").value.ToBoolean() ? 1 : 0; });
    Attempt([&] { column.fontSize = Pref("SL_FontSizeFactor").value.ToDouble() * (column.rowHeight / 1.5); });
    return column;
}

void PlaceRow(TileButton& row, int top, int height) {
    Attempt([&] { row.Move({0, top, row.Bounds().width, row.Bounds().height}); });
    Attempt([&] { row.Move({0, top, row.Bounds().width, height}); });
}

void SetupRow(TileButton& row, int number, const Column& column) {
    column.letters.style(column.letters, row);
    TileLayer& layer = row.Elements.Item("Caption");
    const bool isSelected = number == SelectedRow, isLetter = number <= Letters;
    Attempt([&] { layer.ForeColor = Pref(isSelected ? "SL_SelTextColor" : "SL_TextColor").value.ToLong(); });
    if (isSelected) Attempt([&] { row.Picture = LoadSkinPicture(PrefText("SL_PictureOn")); });
    if (isSelected) row.AniPicture.clear();
    const int top = (number - 1) * column.rowHeight;
    PlaceRow(row, top, isLetter ? column.rowHeight + column.border : column.height - top);
    if (isLetter) {
        layer.Text = {' ', static_cast<char>('A' + number - 1), ' '};
    } else {
        row.PictureOver = row.PictureDown = nullptr;
        row.AniPictureOver.clear(), row.AniPictureDown.clear();
    }
    layer.Font.Size = column.fontSize;
    layer.Height = TextHeight(layer.Font);
    layer.Visible = true;
    row.Refresh();
    row.setVisible(true);
}

}  // namespace

void SetupSearchLetters() {
    LayoutHost& host = TargetForm->host();
    HideLetters(host.sample.lbl_SL);
    const Column column = MeasureColumn(host);
    for (int number = 1; number <= Letters + 1; ++number)
        SetupRow(host.sample.lbl_SL[GetFreeLetter(host.sample.lbl_SL)], number, column);
}

}  // namespace ornavo
