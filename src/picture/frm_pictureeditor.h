// SPDX-License-Identifier: MIT
// The dialog that recolours a picture: source and result side by side, two sliders, presets and save options.
#pragma once

#include <QListWidget>
#include <string>
#include <string_view>

#include "picture/colour_slider.h"
#include "picture/dib_view.h"
#include "picture/kept_clear.h"
#include "pixels/ccolourise.h"
#include "platform/form.h"
#include "platform/tile_command.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace ornavo {

/// The picture editor, for a single use: call SetFinalName and SetEditPicture, then ShowModal, which returns
/// when the dialog is closed; then read IsCanceled and EditPicture.
class frm_PictureEditor : public Form {
    Q_OBJECT
public:
    explicit frm_PictureEditor(QWidget* owner);

    /// The path of the opened picture; after a save, of the written file.
    const std::string& EditPicture() const { return editPicture_; }
    /// Sets the picture as the skin names it. If its source has been kept, the source is opened instead.
    void SetEditPicture(const std::string& picture);
    const std::string& FinalName() const { return finalName_; }
    void SetFinalName(const std::string& name);  // the proposed base name of the file
    /// Sets the key of the element that has the picture; "" if none.
    void SetSelKey(const std::string& key) { selKey_ = key; }
    bool IsCanceled() const { return isCanceled_; }
    void ShowModal();

    DibView* picSource;
    DibView* picResult;
    ColourSlider* hscHue;
    ColourSlider* hscSaturation;
    QLabel* lblHueValue;
    QLabel* lblSaturationValue;
    QLabel* lbl_Presets;
    QListWidget* lstPresets;
    TileCommand* btn_SavePreset;
    TileCommand* btn_DeletePreset;
    QGroupBox* fraOptions;
    QLineEdit* tbx_FinalName;
    QRadioButton* optBMP;
    QRadioButton* optJPG;
    TileCommand* btn_Save;
    TileCommand* btn_Cancel;
    QLabel* lbl_Notice;  // a warning or an error; "" if there is none

    void Form_Load();
    void btn_SavePreset_Click();
    void btn_DeletePreset_Click();
    void btn_Save_Click();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void Form_Unload() override;

signals:
    void Unloaded();

private:
    void Arrange();
    QWidget* ColourBox();
    QWidget* PresetBox();
    QWidget* OptionsBox();
    void Connect();
    void LoadSource();
    void ListPresets();
    void Redraw();
    void lstPresets_Click();
    void tbx_FinalName_Change();
    void tbx_FinalName_LostFocus();
    void ShowNotice(const std::string& failure = {});

    std::string picture_;  // the picture as the skin names it
    std::string editPicture_, selKey_, finalName_, finalNameBackup_, presetName_;
    std::string loss_;  // what the result cannot keep of the picture
    bool isLoading_ = false, isCanceled_ = true;
    cDIBSection source_, result_;
    cColourise engine_;
    KeptClear kept_;
};

}  // namespace ornavo
