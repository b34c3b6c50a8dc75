// SPDX-License-Identifier: MIT
// How one window asks for another. The program ties these to the real windows.
#pragma once

#include <string_view>

namespace ornavo {

/// By the main window.
class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void UpdateCurrentLayout() = 0;
    virtual void UpdateCaption() = 0;
    virtual void ResetFormToOriginal() = 0;
};

/// By the program.
class Windows {
public:
    virtual ~Windows() = default;
    /// Opens the skin that a text names: a name in the program's own "Skins", or a path. Failure if it can't.
    virtual void LoadDebug(std::string_view skinName) = 0;
    /// The end: every window but the main one closes.
    virtual void UnloadOthers() = 0;
};

}  // namespace ornavo
