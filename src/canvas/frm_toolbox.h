// SPDX-License-Identifier: MIT
// The toolbox beside the canvas: adding elements, the view switches, the grid's spacing.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/tile_command.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace ornavo {

/// The toolbox window.
class frm_Toolbox : public Form {
    Q_OBJECT
public:
    /// Owned by the canvas's window; `parts` must live longer.
    explicit frm_Toolbox(CanvasParts& parts);
    ~frm_Toolbox() override;

    /// Shows the window, at its stored place if it was closed.
    void Open();

    TileCommand *btn_AddButton, *btn_AddGraphic, *btn_AddVolume, *btn_AddInfo, *btn_Preview, *btn_ResetView,
        *btn_Magnifier;
    QCheckBox *chk_ShowShape, *chk_ShapeInverted, *chk_ShowElements, *chk_ShowPoints, *chk_ShowLines,
        *chk_ShowGrid, *chk_SnapGrid;
    QLineEdit *tbx_GridX, *tbx_GridY;
    QLabel *lbl_Horizontal, *lbl_Vertical;

    void UpdateCurrentLayout(bool setDirty);

protected:
    void Form_Unload() override;

private:
    TileCommand* Command(const char* name, const char* caption, const char* picture, int size,
                         const char* tip);
    QCheckBox* Check(const char* name, const char* caption, const char* tip);
    QLineEdit* Spacing(const char* name, const char* says);
    void Arrange();
    void EnableAdders();  // only while a layout is open
    void Connect();
    void Form_Load();
    void Switch(QCheckBox* box, bool& viewSwitch, void (frm_Toolbox::*refresh)());
    void Recompose() { UpdateCurrentLayout(false); }
    void ShowElementsChanged();
    void RepaintGrid();
    void SpacingLeft(QLineEdit& box, int& spacing);

    CanvasParts& parts_;
    bool loaded_ = false;
};

}  // namespace ornavo
