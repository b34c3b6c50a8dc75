// SPDX-License-Identifier: MIT
// What is typed, ticked or picked in a row goes to the model at once, and is drawn a moment later. A value
// that the model can't hold leaves it as it was, without a word.
#pragma once

namespace ornavo {

struct PanelParts;

// `index` is that of the control in its pool.
void tbx_Prop_Change(PanelParts& parts, int index);
void tbx_Prop_KeyPress(PanelParts& parts, int index);  // Enter
void tbx_Prop_LostFocus(PanelParts& parts, int index);
void chk_Boolean_Click(PanelParts& parts, int index);
void cboProp_Click(PanelParts& parts, int index);

}  // namespace ornavo
