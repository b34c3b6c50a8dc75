// SPDX-License-Identifier: MIT
// Owns the windows and connects them.
#pragma once

#include <memory>
#include <string>

#include "app/tool_places.h"
#include "canvas/frm_ornavo.h"
#include "canvas/frm_toolbox.h"
#include "dialogs/qt_prompts.h"
#include "editor/windows.h"
#include "magnifier/frm_magnifier.h"
#include "preview/frm_preview.h"
#include "project/frm_skinproject.h"
#include "properties/frm_properties.h"

namespace ornavo {

/// The program: implements the calls between windows.
class Program : public Windows {
public:
    /// `ownFolder` has the folder "Skins", `dataFolder` the folder "Recovered".
    Program(std::string version, const std::string& ownFolder, const std::string& dataFolder);
    ~Program() override;

    void Start(std::string commandLine);

    void ShowSkinProject() override;
    void LoadDebug(std::string_view skinName) override;
    std::string SkinsFolder() const override;
    void SaveSkin() override;
    bool MayClose() override;
    void UnloadOthers() override;
    void ShowToolbox() override;
    void ArrangeTools() override { tools_.Arrange(main_); }
    void ShowPreview() override;
    void LeavePreview() override;
    void ToggleMagnifier() override;
    bool EditPicture(const std::string& finalName, std::string& path) override;
    const std::vector<WindowLine>& Lines() override { return lines_; }
    PropertiesPanel& properties() override;

private:
    void ToggleToolbox();
    void ToggleProperties();

    std::string ownFolder_;
    QtPrompts prompts_;
    frm_Ornavo main_;
    frm_SkinProject project_;
    std::unique_ptr<frm_Properties> properties_;  // null until first used
    std::unique_ptr<frm_Toolbox> toolbox_;        // null until first shown
    std::unique_ptr<frm_Magnifier> magnifier_;    // the last one opened
    std::unique_ptr<frm_Preview> preview_;        // null unless it is open
    ToolPlaces tools_;
    bool toolboxWaits_ = false;  // to be shown once the main window is visible
    std::vector<WindowLine> lines_;
};

}  // namespace ornavo
