// SPDX-License-Identifier: MIT
// How one window asks for another. The program ties these to the real windows.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ornavo {

class Control;

/// By the main window.
class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void UpdateCurrentLayout() = 0;
    virtual void UpdateCaption() = 0;
    virtual void ResetFormToOriginal() = 0;
    virtual void ResetSelection() {}
    virtual void HideSelectionTools() {}  // handles and properties panel
    /// Places the handles round the control and gives it back; without `keepSelection` it becomes the
    /// selection.
    virtual Control* PlaceAnchors(Control* control, bool /*keepSelection*/) { return control; }
};

/// By the properties panel; without one, nothing happens.
class PropertiesPanel {
public:
    virtual ~PropertiesPanel() = default;
    virtual void Open() {}  // shown if hidden, then ShowProperties
    virtual void ShowProperties() {}
    virtual void UnloadProperties() {}
    virtual void Hide() {}
    virtual void DrawPendingEdits() {}  // what still waits to be drawn is drawn now
    virtual bool IsShown() const { return false; }
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
    virtual std::string SkinsFolder() const { return {}; }
    /// The beginning of the end: the project panel asks and closes. False when a save failed: then nothing
    /// else closes.
    virtual bool MayClose() { return true; }
    /// The end: every window but the main one closes.
    virtual void UnloadOthers() = 0;
    virtual void ShowSkinProject() {}  // the project panel, at start
    virtual void SaveSkin() {}         // what its Save button does
    virtual void ShowToolbox() {}
    virtual void ArrangeTools() {}  // the main window has another size, or a tool window comes up
    virtual void ToggleMagnifier() {}
    virtual void ShowPreview() {}   // and the four windows hide,
    virtual void LeavePreview() {}  // and come back
    /// The picture editor on a picture of the skin: `finalName` is the proposed base name, `path` the picture
    /// and then what was saved. False: cancelled.
    virtual bool EditPicture(const std::string& /*finalName*/, std::string& /*path*/) { return false; }
    virtual const std::vector<WindowLine>& Lines() {
        static const std::vector<WindowLine> none;
        return none;
    }
    virtual PropertiesPanel& properties() {
        static PropertiesPanel none;
        return none;
    }
};

}  // namespace ornavo
