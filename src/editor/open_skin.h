// SPDX-License-Identifier: MIT
// A skin that is opened by a gesture, wherever on the windows that is.
#pragma once

#include <string>

namespace ornavo {

class Windows;

inline constexpr const char* LoadingError = "Loading Skin Error";  // the title of what is told

/// Opens the skin of that path. One that can't be opened is told.
void OpenSkin(Windows& windows, const std::string& path);

}  // namespace ornavo
