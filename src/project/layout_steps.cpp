// SPDX-License-Identifier: MIT
#include "project/layout_steps.h"

#include "base/failure.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "platform/prompts.h"

namespace ornavo {

std::string StorableLayoutName(std::string_view name) {
    return FromFileBytes(ToFileBytes(name));
}

void RenameLayout(std::string_view key, std::string_view name) {
    objSkin->dbLayouts->Item(key)->LayoutName = StorableLayoutName(name);
}

bool AddLayout(std::string_view name) {
    if (!Attempt([&] { objCurrentLayout = objSkin->AddNewLayout(StorableLayoutName(name)); })) {
        prompts().Message("Layout already exists in current Skin!", "Layout already exists",
                          Icon::Information, Buttons::Ok);
        return false;
    }
    objCurrentLayout->AddDummyPoints();
    objSkin->Dirty = true;
    return true;
}

bool DeleteLayout(std::string_view key, std::string_view text) {
    if (EqualText(key, "Standard")) {
        prompts().Message("You cannot delete Standard Layout!", "Layout locked", Icon::Information,
                          Buttons::Ok);
        return false;
    }
    const std::string question = "Do really want to delete Layout '" + std::string(text) + "'?";
    if (prompts().Message(question, "Delete Layout", Icon::Question, Buttons::YesNo) != Answer::Yes)
        return false;
    objSkin->dbLayouts->Remove(key);
    objSkin->Dirty = true;
    return true;
}

}  // namespace ornavo
