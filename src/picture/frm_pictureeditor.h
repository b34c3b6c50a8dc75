// SPDX-License-Identifier: MIT
// The dialog that recolours a picture: the source beside the result, two sliders, presets, and what the
// result is saved as.
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

/// Used once: FinalName and EditPicture are set, ShowModal comes back when the dialog has gone, and
/// IsCanceled and EditPicture tell what became of it.
class frm_PictureEditor : public Form {
    Q_OBJECT
public:
    explicit frm_PictureEditor(QWidget* owner);

    /// The path of the picture that is opened; after a save that of the file written.
    const std::string& EditPicture() const { return editPicture_; }
    /// A picture as the skin names it; its kept source is opened instead of it, if there is one.
    void SetEditPicture(const std::string& picture);
    const std::string& FinalName() const { return finalName_; }
    void SetFinalName(const std::string& name);
    /// The key of the element whose picture it is; "" for none.
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
    QLabel* lbl_Notice;  // what is to be known, or what went wrong; "" for nothing

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

    std::string picture_;  // as the skin names it
    std::string editPicture_, selKey_, finalName_, finalNameBackup_, presetName_;
    std::string loss_;  // what of the picture the result can't hold
    bool isLoading_ = false, isCanceled_ = true;
    cDIBSection source_, result_;
    cColourise engine_;
    KeptClear kept_;
};

}  // namespace ornavo
