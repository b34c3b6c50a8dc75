// SPDX-License-Identifier: MIT
// The project panel: opens, creates and saves skins, and manages the list of layouts.
#pragma once

#include <QPointer>
#include <string>

#include "editor/windows.h"
#include "platform/form.h"
#include "platform/tile_command.h"
#include "project/frm_addnewskin.h"
#include "project/layout_list.h"
#include "project/skin_files.h"

class QLabel;
class QLineEdit;

namespace ornavo {

/// The project panel.
class frm_SkinProject : public Form {
    Q_OBJECT
public:
    frm_SkinProject(QWidget* owner, Windows& windows, Canvas& canvas, SkinFiles files);
    ~frm_SkinProject() override;

    QLineEdit* tbx_SkinName;
    LayoutList* lst_Layouts;
    QLabel* lbl_Damage;  // what was lost of the skin's file; hidden if nothing was
    TileCommand *btn_OpenSkin, *btn_CreateNewSkin, *btn_SaveSkin;
    TileCommand *btn_SkinProperties, *btn_CloneLayout, *btn_SaveToSkin;
    QPointer<frm_AddNewSkin> AddNewSkin;  // null unless the dialog is open

    /// Shows the current skin. Its layout with this key becomes the current one, or else its first layout.
    void ShowSkinProject(std::string_view key = "");
    void LoadDebug(const SkinPlace& place);  // opens and shows the skin; Failure if that is impossible
    /// Saves as the Save button does; does nothing while no skin is open. False if nothing was saved.
    bool SaveSkin();

    void Hide();  // does not ask about changes; stores its place
    /// Called when the program ends: asks about changes, whether or not the panel is visible, and closes it.
    /// The panel is shown again unless that succeeds.
    void AskAtEnd();

    /// The outcome of the last request to close the window.
    enum class Unload { Done, Cancelled, SaveFailed };
    Unload LastUnload() const { return lastUnload_; }
    /// Makes the panel the program's last window, in which the skin can still be saved.
    void StandAlone();

protected:
    void Form_Resize() override;
    bool Form_QueryUnload() override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void Form_Load();
    void MakeControls();
    void LayOut();
    void EnableSkinControls(bool enabled);
    void EnableLayoutButtons(bool enabled);
    void ShowDamage();
    void ShowReplacedSkin();
    void ShowCurrentLayout();
    void FinishEdits();
    void KeepPlace() const;
    Unload AskToSave();

    void tbx_SkinName_LostFocus();
    void btn_OpenSkin_Click();
    void btn_CreateNewSkin_Click();
    void btn_SkinProperties_Click();
    void btn_CloneLayout_Click();
    void btn_SaveToSkin_Click();
    void lst_Layouts_ItemClick();
    void lst_Layouts_Delete();
    void lst_Layouts_AfterLabelEdit(const QString& key, const QString& text);

    Windows& windows_;
    Canvas& canvas_;
    SkinFiles files_;
    Unload lastUnload_ = Unload::Done;
};

}  // namespace ornavo
