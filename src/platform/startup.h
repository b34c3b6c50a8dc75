// SPDX-License-Identifier: MIT
// What must be set up before the first window: environment, style, palette, fonts, number signs.
#pragma once

#include <string>

class QApplication;

namespace ornavo {

/// Before QApplication: prefers X11 to Wayland, and rounds scale factors down to whole numbers.
void PrepareProcess();
/// After QApplication: Fusion style, the light palette, the program's face in the size of the desktop's font,
/// stand-ins for fonts, the user's number signs.
void InitCommonControls(QApplication& application);
/// The folder of the user's data; it contains "Skins" and "Recovered". Without a separator at its end.
std::string DataFolder();

}  // namespace ornavo
