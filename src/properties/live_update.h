// SPDX-License-Identifier: MIT
// After the last of a run of edits the canvas shows them: by what is selected, one thing is drawn anew.
#pragma once

namespace ornavo {

struct PanelParts;

void tmrUpdate_Timer(PanelParts& parts);
/// The skin is dirty, its layout is composed anew, and the selection goes on.
void UpdateCurrentLayout(PanelParts& parts);

}  // namespace ornavo
