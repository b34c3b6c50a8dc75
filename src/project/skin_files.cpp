// SPDX-License-Identifier: MIT
#include "project/skin_files.h"

#include "base/failure.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "platform/prompts.h"

namespace ornavo {
namespace {

constexpr std::string_view SettingsFile = "SkinSettings.xml";
constexpr const char* SaveTitle = "Save current Skin";

}  // namespace

SkinPlace PlaceOfSkin(std::string_view text, std::string_view ownFolder) {
    if (!ContainsSeparator(text))
        return {WithSeparator(WithSeparator(ownFolder) + "Skins"), std::string(text)};
    std::string folder = WithSeparator(std::filesystem::absolute(OnDisk(text)).lexically_normal().string());
    if (EqualText(GetFileName(folder), SettingsFile))
        folder = GetParentFolderName(folder.substr(0, folder.size() - 1));
    folder.pop_back();
    return {GetParentFolderName(folder), GetFileName(folder)};
}

void OpenSkin(const SkinPlace& place, Canvas& canvas) {
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = std::make_shared<dbLayout>();
    objSkin->SetBasePath(place.basePath);
    objSkin->SkinName = place.skinName;
    objSkin->LoadSkin();
    if (objSkin->dbLayouts->Count() > 0) objCurrentLayout = objSkin->dbLayouts->Item(1);
    canvas.ResetFormToOriginal();
    canvas.UpdateCurrentLayout();
}

bool AskToSaveSkin() {
    if (!objSkin || !objSkin->Dirty) return true;
    const Answer answer = prompts().Message("Save changes of current Skin before closing Ornavo?", SaveTitle,
                                            Icon::Question, Buttons::YesNoCancel);
    if (answer == Answer::Cancel) return false;
    if (answer != Answer::Yes) return true;
    try {
        objSkin->SaveSkin(false);
        return true;
    } catch (const Failure& failure) {
        prompts().Message(failure.description(), SaveTitle, Icon::Critical, Buttons::Ok);
        return false;
    }
}

}  // namespace ornavo
