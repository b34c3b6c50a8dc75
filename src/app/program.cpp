// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "project/skin_files.h"

namespace ornavo {

Program::Program(std::string version, std::string ownFolder)
    : ownFolder_(std::move(ownFolder)), main_(*this, std::move(version)) {
    UsePrompts(&prompts_);
}

Program::~Program() {
    UsePrompts(nullptr);
}

void Program::LoadDebug(std::string_view skinName) {
    OpenSkin(PlaceOfSkin(skinName, ownFolder_), main_);
}

void Program::UnloadOthers() {
    AskToSaveSkin();
}

}  // namespace ornavo
