// SPDX-License-Identifier: MIT
// The properties panel, which shows one sheet of rows for the selection.
#pragma once

#include <QScrollArea>
#include <QTimer>

#include "platform/form.h"
#include "properties/commit.h"
#include "properties/panel_parts.h"
#include "properties/row_sheet.h"
#include "properties/sheet_row.h"

namespace ornavo {

/// The window of the panel: its place and size, and the choice of the sheet.
class frm_Properties : public Form, public PropertiesPanel {
    Q_OBJECT
public:
    /// `owner` is the main window, or null.
    frm_Properties(QWidget* owner, Windows& windows, Canvas& canvas);
    ~frm_Properties() override;

    void Open() override;
    void ShowProperties() override;
    void UnloadProperties() override;  // removes all rows
    void Hide() override;
    void DrawPendingEdits() override;
    bool IsShown() const override { return isVisible(); }

    PanelParts& parts() { return parts_; }
    QTimer tmrUpdate;  // 100 ms after the last edit, single shot

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

    QPoint home_, shown_;  // the user's corner, and the one to which a high sheet has moved the panel
    PanelParts parts_;
    RowEdits edits_;  // before the rows, which report a lost focus when they are destroyed
    QScrollArea scroll_;
    RowSheet sheet_;
    RowPools pools_;
};

}  // namespace ornavo
