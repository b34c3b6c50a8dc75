// SPDX-License-Identifier: MIT
// Owner of the windows, and the calls between them.
#pragma once

#include <string>

#include "canvas/frm_ornavo.h"
#include "dialogs/qt_prompts.h"
#include "editor/windows.h"

namespace ornavo {

class Program : public Windows {
public:
    /// `ownFolder` holds the folder "Skins".
    Program(std::string version, std::string ownFolder);
    ~Program() override;

    void Start(std::string commandLine) { main_.Start(std::move(commandLine)); }

    void LoadDebug(std::string_view skinName) override;
    void UnloadOthers() override;

private:
    std::string ownFolder_;
    QtPrompts prompts_;
    frm_Ornavo main_;
};

}  // namespace ornavo
