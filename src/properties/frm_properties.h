// SPDX-License-Identifier: MIT
// The properties panel: one sheet of rows for what is selected. Its life, its size, and which sheet.
#pragma once

#include <QScrollArea>
#include <QTimer>

#include "platform/form.h"
#include "properties/commit.h"
#include "properties/panel_parts.h"
#include "properties/row_sheet.h"
#include "properties/sheet_row.h"

namespace ornavo {

class frm_Properties : public Form, public PropertiesPanel {
    Q_OBJECT
public:
    /// Owned by `owner`, the main window; null for none.
    frm_Properties(QWidget* owner, Windows& windows, Canvas& canvas);
    ~frm_Properties() override;

    void Open() override;
    void ShowProperties() override;
    void UnloadProperties() override;  // every row goes
    void Hide() override;
    void DrawPendingEdits() override;
    bool IsShown() const override { return isVisible(); }

    PanelParts& parts() { return parts_; }
    QTimer tmrUpdate;  // 100 ms after the last edit

protected:
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload() override;

private:
    void Form_Load();
    Sheet SheetOf(const Selection& selection);
    void Build(const Sheet& sheet);
    void FitHeight(int rows);
    int MostHeight() const;

    QPoint home_, shown_;  // the corner that the user chose, and where the height of the sheet has put it
    PanelParts parts_;
    RowEdits edits_;  // outlives the rows, which tell it of a lost focus as they go
    QScrollArea scroll_;
    RowSheet sheet_;
    RowPools pools_;
};

}  // namespace ornavo
