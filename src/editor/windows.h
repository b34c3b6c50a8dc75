// SPDX-License-Identifier: MIT
// How one window asks for another. The program ties these to the real windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

class Control;
class Selection;

/// By the main window.
class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void UpdateCurrentLayout() = 0;
    virtual void UpdateCaption() = 0;
    virtual void ResetFormToOriginal() = 0;
    virtual void ResetSelection() = 0;
    virtual void HideSelectionTools() = 0;  // handles and properties panel
    /// Places the handles around the selected control; without one, or where it is hidden, they go.
    virtual void PlaceAnchors() = 0;
    /// The control becomes the selection and shows the handles; if it is hidden, they go and it doesn't.
    virtual void SelectWithAnchors(Control& control) = 0;
    virtual Selection& selection() = 0;
};

/// By the properties panel.
class PropertiesPanel {
public:
    virtual ~PropertiesPanel() = default;
    virtual void Open() = 0;  // shown if hidden, then ShowProperties
    virtual void ShowProperties() = 0;
    virtual void UnloadProperties() = 0;
    virtual void Hide() = 0;
    virtual void DrawPendingEdits() = 0;  // what still waits to be drawn is drawn now
    virtual bool IsShown() const = 0;
};

/// One of the windows that the user shows and hides by a menu.
struct WindowLine {
    std::string caption;
    std::function<bool()> isShown;
    std::function<void()> toggle;
};

/// By the program.
class Windows {
public:
    virtual ~Windows() = default;
    /// Opens the skin that a text names: a name in the program's own "Skins", or a path. What leads to no
    /// skin opens nothing. Failure if the skin can't be opened.
    virtual void LoadDebug(std::string_view skinName) = 0;
    /// The folder of the user's skins; "" for none.
    virtual std::string SkinsFolder() const = 0;
    /// The beginning of the end: the project panel asks and closes. False when a save failed: then nothing
    /// else closes.
    virtual bool MayClose() = 0;
    /// The end: every window but the main one closes.
    virtual void UnloadOthers() = 0;
    virtual void ShowSkinProject() = 0;  // the project panel, at start
    virtual void SaveSkin() = 0;         // what its Save button does
    virtual void ShowToolbox() = 0;
    virtual void ArrangeTools() = 0;  // the main window has another size, or a tool window comes up
    virtual void ToggleMagnifier() = 0;
    virtual void ShowPreview() = 0;   // and the four windows hide,
    virtual void LeavePreview() = 0;  // and come back
    /// The picture editor on a picture of the skin: `finalName` is the proposed base name, `path` the picture
    /// and then what was saved. False: cancelled.
    virtual bool EditPicture(const std::string& finalName, std::string& path) = 0;
    virtual const std::vector<WindowLine>& Lines() = 0;
    virtual PropertiesPanel& properties() = 0;
};

}  // namespace ornavo
