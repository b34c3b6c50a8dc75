// SPDX-License-Identifier: MIT
// Places and styles the sample of the jukebox's list panel on `pMain` of the target.
#pragma once

namespace ornavo {

/// Places everything by the margins of the layout's Main element and a few preferences. Fast enough for each
/// step of a resize and each key press.
void LayoutKioskPanel();

/// Styles everything by the preferences; the search letters come last.
void SetupKioskPanel();

}  // namespace ornavo
