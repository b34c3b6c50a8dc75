// SPDX-License-Identifier: MIT
#include "properties/commit.h"

#include "base/failure.h"
#include "properties/panel_parts.h"

namespace ornavo {
namespace {

void Commit(PanelParts& parts, const std::string& key, const Value& value) {
    Attempt([&] { SetRowValue(parts.BoundObject, key, value); });
    parts.tmrUpdate.start();
}

}  // namespace

void tbx_Prop_Change(PanelParts& parts, int index) {
    if (parts.IsBuilding) return;
    const RowText& box = parts.pools.tbx_Prop[index];
    Commit(parts, box.Tag, box.Text());
}

void tbx_Prop_KeyPress(PanelParts& parts, int index) {
    tbx_Prop_Change(parts, index);
}

void tbx_Prop_LostFocus(PanelParts&, int) {}

void chk_Boolean_Click(PanelParts& parts, int index) {
    if (parts.IsBuilding) return;
    const RowCheck& box = parts.pools.chk_Boolean[index];
    Commit(parts, box.Tag, box.Value());
}

void cboProp_Click(PanelParts& parts, int index) {
    if (parts.IsBuilding) return;
    const RowCombo& combo = parts.pools.cboProp(index);
    Commit(parts, combo.Tag, combo.ListIndex());
}

}  // namespace ornavo
