// SPDX-License-Identifier: MIT
// A row's button: a colour, a font or a picture is chosen, or a picture is edited.
#pragma once

namespace ornavo {

struct PanelParts;

// `index` is that of the button in its pool.
void btn_Prop_Click(PanelParts& parts, int index);
void btn_PicEdit_Click(PanelParts& parts, int index);

}  // namespace ornavo
