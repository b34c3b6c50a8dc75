// SPDX-License-Identifier: MIT
// The other windows as one window of a test sees them: what they are asked for is counted.
#pragma once

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "editor/windows.h"

namespace ornavo::testing {

class RecordedCanvas : public Canvas {
public:
    void UpdateCurrentLayout() override { composed = objCurrentLayout; }
    void UpdateCaption() override {}
    void ResetFormToOriginal() override { ++sized; }
    void ResetSelection() override { selection_.Clear(), ++reset; }
    void HideSelectionTools() override {}
    void PlaceAnchors() override {}
    void SelectWithAnchors(Control&) override {}
    Selection& selection() override { return selection_; }
    dbLayoutRef composed;  // the last one
    int sized = 0, reset = 0;

private:
    Selection selection_{[](Control&, bool) {}};
};

class RecordedPanel : public PropertiesPanel {
public:
    void Open() override { shown = true, ++opened; }
    void ShowProperties() override { ++sheets; }
    void UnloadProperties() override { ++unloaded; }
    void Hide() override { shown = false; }
    void DrawPendingEdits() override {}
    bool IsShown() const override { return shown; }
    int opened = 0, sheets = 0, unloaded = 0;
    bool shown = false;
};

class RecordedWindows : public Windows {
public:
    void LoadDebug(std::string_view skinName) override {
        opened = skinName;
        if (!failure.empty()) throw Failure(513, "LoadSkin", failure);
    }
    std::string SkinsFolder() const override { return {}; }
    bool MayClose() override { return true; }
    void UnloadOthers() override { ++unloaded; }
    void ShowSkinProject() override {}
    void SaveSkin() override { ++saved; }
    void ShowToolbox() override { ++toolboxes; }
    void ArrangeTools() override {}
    void ToggleMagnifier() override {}
    void ShowPreview() override { ++previews; }
    void LeavePreview() override { ++left; }
    bool EditPicture(const std::string&, std::string&) override { return false; }
    const std::vector<WindowLine>& Lines() override { return lines; }
    PropertiesPanel& properties() override { return real ? *real : panel; }
    PropertiesPanel* real = nullptr;  // in place of the recorded one
    RecordedPanel panel;
    std::vector<WindowLine> lines;
    std::string opened, failure;
    int saved = 0, previews = 0, unloaded = 0, toolboxes = 0, left = 0;
};

}  // namespace ornavo::testing
