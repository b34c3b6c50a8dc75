// SPDX-License-Identifier: MIT
// Makes the rows of a sheet: takes the controls for each row from the pools and places them.
#pragma once

#include "document/dblayouts.h"
#include "platform/panel_scale.h"
#include "properties/row_pools.h"
#include "properties/row_sheet.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// The text for an element in the list of elements.
QString LineOf(const dbLayoutElement& element);

/// Appends rows to a sheet from top to bottom.
class Rows {
public:
    /// `scaleWidth` is the width of the sheet in pixels.
    Rows(RowPools& pools, int scaleWidth, const PanelScale& scale);

    int RowCount = 0;
    int NextRowTop = 0;  // pixels

    /// Appends one row. A step that fails, such as an invalid colour or list index, is skipped.
    void AddProperties(const SheetRow& row);
    /// The values of all rows from top to bottom.
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
