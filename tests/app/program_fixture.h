// SPDX-License-Identifier: MIT
// The whole program in a folder of its own, its prompts scripted.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

#include "app/program.h"
#include "document/current_skin.h"
#include "platform/settings.h"
#include "support/scripted_prompts.h"

namespace ornavo::testing {

class ProgramTest : public ::testing::Test {
protected:
    ProgramTest() { UseSettingsFile(folder_.filePath("settings.ini")); }
    void Start(const std::string& commandLine) {
        program_.reset();
        objSkin = std::make_shared<dbSkin>();
        objCurrentLayout = std::make_shared<dbLayout>();
        program_ = std::make_unique<Program>("0.1", Folder(), Folder());
        UsePrompts(&prompts_);
        program_->Start(commandLine);
    }
    std::string Folder() const { return folder_.path().toStdString(); }
    template <class T>
    static T& Window() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = dynamic_cast<T*>(widget)) return *window;
        throw std::runtime_error("a window is missing");
    }
    static frm_SkinProject& Panel() { return Window<frm_SkinProject>(); }
    static frm_Ornavo& Main() { return Window<frm_Ornavo>(); }

    QTemporaryDir folder_;
    ScriptedPrompts prompts_;
    std::unique_ptr<Program> program_;
};

}  // namespace ornavo::testing
