// SPDX-License-Identifier: MIT
#include "properties/choosers.h"

#include "properties/panel_parts.h"

namespace ornavo {

void btn_Prop_Click(PanelParts&, int) {}

void btn_PicEdit_Click(PanelParts&, int) {}

}  // namespace ornavo
