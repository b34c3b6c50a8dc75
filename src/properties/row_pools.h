// SPDX-License-Identifier: MIT
// The pools from which the rows take their controls, and the events of these controls.
#pragma once

#include "platform/pool.h"
#include "properties/row_controls.h"

namespace ornavo {

/// What the user does to a row. Changes by code are reported too.
class RowEvents {
public:
    virtual ~RowEvents() = default;
    virtual void tbx_Prop_Change(RowText& box) = 0;
    virtual void tbx_Prop_KeyPress(RowText& box) = 0;  // the Enter key
    virtual void tbx_Prop_LostFocus(RowText& box) = 0;
    virtual void chk_Boolean_Click(RowCheck& box) = 0;
    virtual void cboProp_Click(RowCombo& combo) = 0;
    virtual void btn_Prop_Click(RowButton& button) = 0;
    virtual void btn_PicEdit_Click(RowButton& button) = 0;
};

/// The pools of all controls of rows. A control is free while its Tag is "". Slot 0 of each pool is a hidden
/// template.
class RowPools {
public:
    /// The controls become children of the sheet, which destroys them.
    RowPools(QWidget& sheet, RowEvents& events);

    Pool<RowLabel> lbl_Prop;
    Pool<RowText> tbx_Prop;
    Pool<RowFrame> cboPic;  // each contains its combo box
    Pool<RowCheck> chk_Boolean;
    Pool<RowButton> btn_Prop;
    Pool<RowButton> btn_PicEdit;
    RowCombo& cboProp(int index) const { return cboPic[index].cboProp; }

    // Each returns the index of a free control.
    int LoadLabel() { return lbl_Prop.GetFree(); }
    int LoadTextbox();  // editable, white, without tool tip and button
    int LoadCombo() { return cboPic.GetFree(); }
    int LoadCheckBox() { return chk_Boolean.GetFree(); }
    int LoadButton() { return btn_Prop.GetFree(); }
    int LoadPicEdit() { return btn_PicEdit.GetFree(); }

    void UnloadProperties();  // hides and frees all controls and empties the lists
};

}  // namespace ornavo
