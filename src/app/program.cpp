// SPDX-License-Identifier: MIT
#include "app/program.h"

#include "editor/settings_keys.h"
#include "picture/frm_pictureeditor.h"
#include "platform/panel_scale.h"
#include "project/own_folder.h"

namespace ornavo {
namespace {

constexpr int UsualSheetHeight = 640;  // pixels; most sheets need less

}  // namespace

Program::Program(std::string version, const std::string& ownFolder, const std::string& dataFolder)
    : ownFolder_(ownFolder),
      main_(*this, std::move(version)),
      project_(&main_, *this, main_, SkinFiles(ownFolder, dataFolder)) {
    UsePrompts(&prompts_);
    lines_ = {{"Skin Project", [this] { return project_.isVisible(); },
               [this] { project_.isVisible() ? project_.Hide() : ShowSkinProject(); }},
              {"Toolbox", [this] { return toolbox_ && toolbox_->isVisible(); }, [this] { ToggleToolbox(); }},
              {"Properties", [this] { return properties().IsShown(); }, [this] { ToggleProperties(); }},
              {"Magnifier", [this] { return magnifier_ && magnifier_->isVisible(); },
               [this] { ToggleMagnifier(); }}};
    tools_.Add(project_, settings::SkinProjectLeft.section);
}

Program::~Program() {
    UsePrompts(nullptr);
}

void Program::Start(std::string commandLine) {
    main_.Start(std::move(commandLine));
    if (toolboxWaits_) ShowToolbox();
}

void Program::ShowSkinProject() {
    if (!project_.isVisible()) ArrangeTools();
    project_.show();
}

void Program::LoadDebug(std::string_view skinName) {
    const SkinPlace place = PlaceOfSkin(skinName, ownFolder_);
    if (!HoldsSkin(place)) return;
    project_.LoadDebug(place);
    if (main_.isVisible()) ShowSkinProject();
}

std::string Program::SkinsFolder() const {
    return ornavo::SkinsFolder(ownFolder_);
}

void Program::SaveSkin() {
    project_.SaveSkin();
}

bool Program::MayClose() {
    project_.AskAtEnd();
    return project_.LastUnload() != frm_SkinProject::Unload::SaveFailed;
}

void Program::UnloadOthers() {
    if (toolbox_) toolbox_->close();
    if (properties_) properties_->close();
    if (magnifier_) magnifier_->close();
    if (project_.LastUnload() == frm_SkinProject::Unload::Done) return;
    // A panel that stayed open is asked again, and becomes the last window if it stays open once more.
    if (!project_.close()) project_.StandAlone();
}

void Program::ShowToolbox() {
    // A desktop keeps a tool window above its owner only if the owner was shown first.
    toolboxWaits_ = !main_.isVisible();
    if (toolboxWaits_) return;
    if (!toolbox_) {
        toolbox_ = std::make_unique<frm_Toolbox>(main_.parts());
        tools_.Add(*toolbox_, settings::ToolboxLeft.section);
    }
    toolbox_->Open();
}

PropertiesPanel& Program::properties() {
    if (!properties_) {
        properties_ = std::make_unique<frm_Properties>(&main_, *this, main_);
        tools_.Add(*properties_, settings::PropertiesLeft.section, PanelScale(main_)(UsualSheetHeight));
        ArrangeTools();
    }
    return *properties_;
}

void Program::ToggleToolbox() {
    if (toolbox_ && toolbox_->isVisible())
        toolbox_->close();
    else
        ShowToolbox();
}

/// Without a selection the panel shows the preferences of the whole skin.
void Program::ToggleProperties() {
    if (properties().IsShown()) return properties().Hide();
    const Selection& selection = main_.selection();
    if (!selection.SelControl()) project_.btn_SkinProperties->PerformClick();
    if (!selection.SelControl()) properties().UnloadProperties();
    properties().Open();
}

void Program::ShowPreview() {
    if (preview_ || !main_.BeginPreview()) return;
    preview_ = std::make_unique<frm_Preview>(*this);
    const Rect place = main_.TwipBounds();
    try {
        preview_->Open({place.left, place.top});
    } catch (const Failure& failure) {
        LeavePreview();
        prompts_.Message(failure.description(), "Ornavo", Icon::Critical, Buttons::Ok);
        return;
    }
    main_.hide();
    if (toolbox_) toolbox_->hide();
    properties().Hide();
    project_.hide();
}

void Program::LeavePreview() {
    if (!preview_) return;
    preview_->hide();
    preview_.release()->deleteLater();  // because its own close event may have led here
    main_.EndPreview();
    main_.show();
    ShowToolbox();
    project_.show();
    main_.activateWindow();
    main_.setFocus();
}

void Program::ToggleMagnifier() {
    if (magnifier_ && magnifier_->isVisible()) {
        magnifier_->close();
        return;
    }
    magnifier_ = std::make_unique<frm_Magnifier>(&main_);
    magnifier_->Open();
}

bool Program::EditPicture(const std::string& finalName, std::string& path) {
    frm_PictureEditor editor(&main_);
    editor.SetSelKey(main_.selection().SelKey());
    editor.SetFinalName(finalName);
    editor.SetEditPicture(path);
    editor.ShowModal();
    if (editor.IsCanceled()) return false;
    path = editor.EditPicture();
    return true;
}

}  // namespace ornavo
