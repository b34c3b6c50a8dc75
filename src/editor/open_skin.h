// SPDX-License-Identifier: MIT
// Opens a skin for any window of the program.
#pragma once

#include <string>

namespace ornavo {

class Windows;

inline constexpr const char* LoadingError = "Loading Skin Error";  // title of the error message

/// Opens the skin at this path; a failure is shown in a message box.
void OpenSkin(Windows& windows, const std::string& path);

}  // namespace ornavo
