// SPDX-License-Identifier: MIT
// The interfaces by which windows call each other. app/program implements them with the real windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

class Control;
class Selection;

/// What other windows may ask of the canvas; implemented by the main window.
class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void UpdateCurrentLayout() = 0;  // composes the current layout
    virtual void UpdateCaption() = 0;        // updates the window's caption
    virtual void ResetFormToOriginal() = 0;  // gives the window the skin's size
    virtual void ResetSelection() = 0;       // clears the selection and hides the handles
    virtual void HideSelectionTools() = 0;   // clears the selection, hides its panel, ends a drag
    /// Places the handles around the selected control; hides them if there is none or it is hidden.
    virtual void PlaceAnchors() = 0;
    /// Selects the control and shows the handles; if it is hidden, hides the handles and keeps the selection.
    virtual void SelectWithAnchors(Control& control) = 0;
    virtual Selection& selection() = 0;
};

/// What other windows may ask of the properties panel.
class PropertiesPanel {
public:
    virtual ~PropertiesPanel() = default;
    virtual void Open() = 0;              // calls ShowProperties, and shows the panel if it is hidden
    virtual void ShowProperties() = 0;    // builds the sheet for the selection
    virtual void UnloadProperties() = 0;  // removes all rows
    virtual void Hide() = 0;
    virtual void DrawPendingEdits() = 0;  // draws the edits that are still waiting
    virtual bool IsShown() const = 0;
};

/// A window that the user shows and hides by a menu.
struct WindowLine {
    std::string caption;
    std::function<bool()> isShown;
    std::function<void()> toggle;
};

/// What windows may ask of the program.
class Windows {
public:
    virtual ~Windows() = default;
    /// Opens a skin by its name in the program's own "Skins" folder or by a path. Does nothing if there is no
    /// such skin. Failure if the skin cannot be opened.
    virtual void LoadDebug(std::string_view skinName) = 0;
    /// The folder of the user's skins; "" if there is none.
    virtual std::string SkinsFolder() const = 0;
    /// Called before the program ends: the project panel asks what to do with changes and closes. False if a
    /// save has failed, and then nothing is closed.
    virtual bool MayClose() = 0;
    /// Called when the program ends: closes every window but the main one.
    virtual void UnloadOthers() = 0;
    virtual void ShowSkinProject() = 0;  // the project panel, at start
    virtual void SaveSkin() = 0;         // as the panel's Save button does
    virtual void ShowToolbox() = 0;
    virtual void ArrangeTools() = 0;  // after a resize, or before a tool window is shown
    virtual void ToggleMagnifier() = 0;
    virtual void ShowPreview() = 0;   // and hides the four windows
    virtual void LeavePreview() = 0;  // and shows them again
    /// Opens the picture editor on a picture of the skin. `finalName` is the proposed base name. `path` is
    /// the picture, and afterwards the saved file. False if the user cancelled.
    virtual bool EditPicture(const std::string& finalName, std::string& path) = 0;
    virtual const std::vector<WindowLine>& Lines() = 0;
    virtual PropertiesPanel& properties() = 0;
};

}  // namespace ornavo
