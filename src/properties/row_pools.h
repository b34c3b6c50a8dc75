// SPDX-License-Identifier: MIT
// The controls of all rows, taken from pools that only grow, and what the user does to them.
#pragma once

#include "platform/pool.h"
#include "properties/row_controls.h"

namespace ornavo {

/// Changes made by code arrive as well.
class RowEvents {
public:
    virtual ~RowEvents() = default;
    virtual void tbx_Prop_Change(RowText& box) = 0;
    virtual void tbx_Prop_KeyPress(RowText& box) = 0;  // Enter
    virtual void tbx_Prop_LostFocus(RowText& box) = 0;
    virtual void chk_Boolean_Click(RowCheck& box) = 0;
    virtual void cboProp_Click(RowCombo& combo) = 0;
    virtual void btn_Prop_Click(RowButton& button) = 0;
    virtual void btn_PicEdit_Click(RowButton& button) = 0;
};

/// A control is free while its Tag is "". Slot 0 of each pool is the hidden template.
class RowPools {
public:
    /// The controls become children of the sheet and are freed with it.
    RowPools(QWidget& sheet, RowEvents& events);

    Pool<RowLabel> lbl_Prop;
    Pool<RowText> tbx_Prop;
    Pool<RowFrame> cboPic;  // each with its combo box
    Pool<RowCheck> chk_Boolean;
    Pool<RowButton> btn_Prop;
    Pool<RowButton> btn_PicEdit;
    RowCombo& cboProp(int index) const { return cboPic[index].cboProp; }

    // The index of a free one.
    int LoadLabel() { return lbl_Prop.GetFree(); }
    int LoadTextbox();  // unlocked, white, without tool tip and button
    int LoadCombo() { return cboPic.GetFree(); }
    int LoadCheckBox() { return chk_Boolean.GetFree(); }
    int LoadButton() { return btn_Prop.GetFree(); }
    int LoadPicEdit() { return btn_PicEdit.GetFree(); }

    void UnloadProperties();  // all hidden and free, the lists empty
};

}  // namespace ornavo
