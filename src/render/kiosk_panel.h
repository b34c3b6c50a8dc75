// SPDX-License-Identifier: MIT
// The sample of the jukebox's list panel on `pMain` of the target: its places and its styles.
#pragma once

namespace ornavo {

/// Places everything by the margins of the layout's Main element and a few preferences. Cheap: for each step
/// of a resize and each key.
void LayoutKioskPanel();

/// Styles everything by the preferences, the search letters last.
void SetupKioskPanel();

}  // namespace ornavo
