// SPDX-License-Identifier: MIT
// The controls of all rows, taken from pools that only grow, and what the user does to them.
#pragma once

#include "platform/pool.h"
#include "platform/tile_command.h"
#include "properties/row_controls.h"

namespace ornavo {

/// The index is that of the control in its pool. Changes made by code arrive as well.
class RowEvents {
public:
    virtual ~RowEvents() = default;
    virtual void TextChanged(int index) = 0;
    virtual void EnterPressed(int index) = 0;
    virtual void FocusLost(int index) = 0;
    virtual void ButtonWanted(int index) = 0;  // by key, from a text box
    virtual void CheckClicked(int index) = 0;
    virtual void ComboClicked(int index) = 0;
    virtual void ButtonClicked(int index) = 0;
    virtual void PicEditClicked(int index) = 0;
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
    Pool<TileCommand> btn_Prop;
    Pool<TileCommand> btn_PicEdit;
    RowCombo& cboProp(int index) const { return cboPic[index].cboProp; }

    // The index of a free one.
    int LoadLabel() { return lbl_Prop.GetFree(); }
    int LoadTextbox();  // unlocked, white and without a tool tip
    int LoadCombo() { return cboPic.GetFree(); }
    int LoadCheckBox() { return chk_Boolean.GetFree(); }
    int LoadButton() { return btn_Prop.GetFree(); }
    int LoadPicEdit() { return btn_PicEdit.GetFree(); }

    void UnloadProperties();  // all hidden and free, the lists empty
};

}  // namespace ornavo
