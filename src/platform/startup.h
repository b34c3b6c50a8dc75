// SPDX-License-Identifier: MIT
// What stands before the first window: environment, style, palette, fonts, number signs.
#pragma once

#include <string>

class QApplication;

namespace ornavo {

/// Before QApplication: the windowing system's order of choice, whole scale factors.
void PrepareProcess();
/// After it: Fusion style, our one light palette, our face in the size of the application's font, which is
/// the desktop's, font stand-ins, the user's number signs.
void InitCommonControls(QApplication& application);
/// Where the program keeps what is the user's: "Skins" and "Recovered" lie in it.
std::string DataFolder();

}  // namespace ornavo
