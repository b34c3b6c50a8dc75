// SPDX-License-Identifier: MIT
// What is typed, ticked or picked in a row goes to the model at once, and is drawn a moment later. A value
// that the model can't hold leaves it as it was, without a word.
#pragma once

#include "properties/row_pools.h"

namespace ornavo {

struct PanelParts;

/// Listens to the rows. What changes while they are built is no edit.
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
