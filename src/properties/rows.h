// SPDX-License-Identifier: MIT
// A row takes its controls from the pools: which ones its kind needs, and where they stand.
#pragma once

#include "document/dblayouts.h"
#include "platform/panel_scale.h"
#include "properties/row_pools.h"
#include "properties/row_sheet.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// An element as the list of elements shows it.
QString LineOf(const dbLayoutElement& element);

class Rows {
public:
    /// `scaleWidth` is the width of the sheet, pixels; `scale` that of its font.
    Rows(RowPools& pools, int scaleWidth, const PanelScale& scale);

    int RowCount = 0;
    int NextRowTop = 0;  // pixels

    /// Appends one row. What fails (a value that is no colour, a place in no list) is left out.
    void AddProperties(const SheetRow& row);
    /// The values of all rows from the top, as the Tab key walks them.
    const std::vector<RowValue>& Values() const { return values_; }

private:
    using Maker = void (Rows::*)(const SheetRow&);
    static Maker MakerOf(std::int32_t kind);

    void AddCaption(const SheetRow& row);
    void AddBoolean(const SheetRow& row);
    void AddColour(const SheetRow& row);
    void AddText(const SheetRow& row);
    void AddFont(const SheetRow& row);
    void AddPicture(const SheetRow& row);
    void AddList(const SheetRow& row);
    void FillList(RowCombo& combo, const SheetRow& row);

    RowText& Box(const SheetRow& row, int width);
    void Place(RowButton& button, const SheetRow& row, RowText& box, int left);
    void SelectButton(const SheetRow& row, RowText& box);

    RowPools& pools_;
    const PanelScale scale_;
    const int rowPitch_, rowHeight_, captionWidth_, valueOverhang_;
    const int scaleWidth_, valueWidth_;
    std::vector<RowValue> values_;
};

}  // namespace ornavo
