// SPDX-License-Identifier: MIT
// Redraws the part of the canvas that a run of edits has changed, after the last of them.
#pragma once

namespace ornavo {

struct PanelParts;

/// Draws the waiting edits.
void tmrUpdate_Timer(PanelParts& parts);
/// Marks the skin as changed and composes its layout; the selection is kept.
void UpdateCurrentLayout(PanelParts& parts);

}  // namespace ornavo
