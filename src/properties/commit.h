// SPDX-License-Identifier: MIT
// Writes what is typed, checked or selected in a row to the model at once; the canvas is redrawn a moment
// later. A value that the model cannot hold is ignored silently.
#pragma once

#include "properties/row_pools.h"

namespace ornavo {

struct PanelParts;

/// The listener of all rows. Changes while the rows are being built are ignored.
class RowEdits : public RowEvents {
public:
    explicit RowEdits(PanelParts& parts) : parts_(parts) {}

    void tbx_Prop_Change(RowText& box) override;
    void tbx_Prop_KeyPress(RowText& box) override;
    void tbx_Prop_LostFocus(RowText& box) override;
    void chk_Boolean_Click(RowCheck& box) override;
    void cboProp_Click(RowCombo& combo) override;
    void btn_Prop_Click(RowButton& button) override;
    void btn_PicEdit_Click(RowButton& button) override;

private:
    PanelParts& parts_;
};

}  // namespace ornavo
