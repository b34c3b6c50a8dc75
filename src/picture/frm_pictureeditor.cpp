// SPDX-License-Identifier: MIT
#include "picture/frm_pictureeditor.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>

#include "base/failure.h"
#include "base/lookup.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "editor/settings_keys.h"
#include "picture/picture_saving.h"
#include "picture/presets.h"
#include "platform/panel_scale.h"
#include "platform/places.h"
#include "platform/prompts.h"
#include "platform/shown.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

constexpr QSize UsualSize = {1000, 660};
constexpr int SwatchSize = 14;    // pixels
constexpr int RoomOfScreen = 92;  // percent of the screen that the dialog may fill

/// The background for a transparent picture: that of its element, otherwise white.
struct Ground {
    QColor colour = Qt::white;
    std::string name = "white";
};

Ground GroundOf(const dbLayoutElementRef& element) {
    if (!element) return {};
    const QColor colour = ScreenColour(element->BackgroundColor);
    return {colour, "the element's background color, " + colour.name().toStdString()};
}

int ValueOf(const std::string& text, int otherwise) {
    Attempt([&] { otherwise = ToLong(ToNumber(text)); });
    return otherwise;
}

QIcon Swatch(int hue, int saturation) {
    QPixmap pixmap(SwatchSize, SwatchSize);
    pixmap.fill(QColor(PureColour(std::clamp(hue, 0, 255), std::clamp(saturation, 0, 255))));
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);  // so that a selection does not tint it
    return icon;
}

std::string Trimmed(const QLineEdit& box) {
    return std::string(TrimBlanks(box.text().toStdString()));
}

std::string Quoted(const std::string& text) {
    return std::string("\"").append(text).append("\"");
}

/// Centres the window over its owner, in its usual size or as large as the screen allows.
void PlaceOver(QWidget& window, const QWidget* owner) {
    const QRect room = window.screen()->availableGeometry();
    window.resize(PanelScale(window)(UsualSize)
                      .boundedTo(room.size() * RoomOfScreen / 100)
                      .expandedTo(window.minimumSizeHint()));
    QRect place = window.rect();
    place.moveCenter(owner ? owner->frameGeometry().center() : room.center());
    window.move(WithinRoom(room, place.topLeft(), place.size()));
}

}  // namespace

void frm_PictureEditor::Connect() {
    hscHue->SetColours([](int hue) { return PureColour(hue, 255); });
    picSource->ScrollTogether(*picResult);
    picResult->ScrollTogether(*picSource);
    for (ColourSlider* slider : {hscHue, hscSaturation})
        connect(slider, &QSlider::valueChanged, this, &frm_PictureEditor::Redraw);
    connect(lstPresets, &QListWidget::itemSelectionChanged, this, &frm_PictureEditor::lstPresets_Click);
    connect(lstPresets, &QListWidget::itemClicked, this, &frm_PictureEditor::lstPresets_Click);
    connect(btn_SavePreset, &TileCommand::Click, this, &frm_PictureEditor::btn_SavePreset_Click);
    connect(btn_DeletePreset, &TileCommand::Click, this, &frm_PictureEditor::btn_DeletePreset_Click);
    connect(tbx_FinalName, &QLineEdit::textChanged, this, &frm_PictureEditor::tbx_FinalName_Change);
    connect(tbx_FinalName, &QLineEdit::editingFinished, this, &frm_PictureEditor::tbx_FinalName_LostFocus);
    connect(optBMP, &QRadioButton::toggled, this, [this] { ShowNotice(); });
    connect(btn_Save, &TileCommand::Click, this, &frm_PictureEditor::btn_Save_Click);
    connect(btn_Cancel, &TileCommand::Click, this, &QWidget::close);
}

void frm_PictureEditor::SetEditPicture(const std::string& picture) {
    picture_ = picture;
    editPicture_ = SourcePath(picture);
}

void frm_PictureEditor::SetFinalName(const std::string& name) {
    finalName_ = finalNameBackup_ = name;
}

void frm_PictureEditor::ShowModal() {
    Form_Load();
    PlaceOver(*this, parentWidget());
    show();
    QEventLoop loop;
    connect(this, &frm_PictureEditor::Unloaded, &loop, &QEventLoop::quit);
    loop.exec();
}

void frm_PictureEditor::Form_Load() {
    isLoading_ = isCanceled_ = true;
    LoadSource();
    tbx_FinalName->setText(Shown(finalName_));
    ListPresets();
    Attempt([&] { hscHue->setValue(settings::PictureHue.Read()); });
    Attempt([&] { hscSaturation->setValue(settings::PictureSaturation.Read()); });
    (settings::SaveAsBMP.ReadOrStandard() ? optBMP : optJPG)->setChecked(true);
    hscHue->setFocus();
    isLoading_ = false;
    picSource->Refresh();
    result_.Create(source_.Width(), source_.Height());
    Redraw();
    ShowNotice();
}

void frm_PictureEditor::LoadSource() {
    const PictureRef picture = LoadSkinPicture(editPicture_);
    const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Find(selKey_);
    const Ground ground = GroundOf(element);
    const QImage flat = picture ? Flattened(picture->image(), ground.colour) : QImage();
    const bool loaded = !flat.isNull() && source_.CreateFromPicture(flat.constBits(), flat.width(),
                                                                    flat.height(), flat.bytesPerLine());
    btn_Save->setEnabled(loaded);
    if (!loaded)
        loss_ = Quoted(GetFileName(editPicture_)) + " can't be opened as a picture.";
    else if (IsAnimatedGIF(FindSkinPicture(editPicture_)))
        loss_ = "The picture is animated and the saved one can't be: it is the first frame. ";
    if (!loaded) return;
    kept_ = element ? KeptClear(*element, picture->image(), source_) : KeptClear();
    kept_.Paint(source_);
    const bool seeThrough = IsSeeThrough(picture->image());
    if (const std::string kept = kept_.Told(); !kept.empty())
        loss_ +=
            kept + (seeThrough ? "; the rest is put on " + ground.name : "") + ". A JPEG can't keep that.";
    else if (seeThrough)
        loss_ += "The picture is transparent in places and the saved one can't be: they are filled with " +
                 ground.name + ".";
}

void frm_PictureEditor::Redraw() {
    if (isLoading_) return;
    engine_.Hue = hscHue->value();
    engine_.Saturation = hscSaturation->value();
    lblHueValue->setNum(engine_.Hue);
    lblSaturationValue->setNum(engine_.Saturation);
    hscSaturation->SetColours([this](int saturation) { return PureColour(engine_.Hue, saturation); });
    engine_.Process(source_, result_);
    kept_.Paint(result_);
    picResult->Refresh();
}

void frm_PictureEditor::ListPresets() {
    lstPresets->clear();
    for (const Preset& preset : ReadPresets())
        lstPresets->addItem(new QListWidgetItem(Swatch(ValueOf(preset.hue, 0), ValueOf(preset.saturation, 0)),
                                                Shown(preset.name)));
    btn_DeletePreset->setEnabled(lstPresets->count() > 0);
}

void frm_PictureEditor::lstPresets_Click() {
    const QList<QListWidgetItem*> selected = lstPresets->selectedItems();
    if (selected.isEmpty()) return;
    const std::vector<Preset> presets = ReadPresets();
    const auto index = static_cast<std::size_t>(lstPresets->row(selected.first()));
    if (index >= presets.size()) return;  // if another running Ornavo has deleted some
    const Preset& preset = presets[index];
    presetName_ = preset.name;
    hscHue->setValue(ValueOf(preset.hue, hscHue->value()));
    hscSaturation->setValue(ValueOf(preset.saturation, hscSaturation->value()));
}

void frm_PictureEditor::btn_SavePreset_Click() {
    const std::optional<std::string> answer =
        prompts().Input("Enter name for Color preset", "Save preset", presetName_);
    const std::string name(TrimBlanks(answer.value_or("")));
    if (name.empty()) return;
    try {
        AddPreset(name, hscHue->value(), hscSaturation->value());
    } catch (const Failure& failure) {
        ShowNotice(failure.description());
    }
    ListPresets();
}

void frm_PictureEditor::btn_DeletePreset_Click() {
    const QList<QListWidgetItem*> selected = lstPresets->selectedItems();
    if (selected.isEmpty()) return;
    DeletePreset(lstPresets->row(selected.first()));
    ListPresets();
}

void frm_PictureEditor::tbx_FinalName_Change() {
    finalName_ = Trimmed(*tbx_FinalName);
    ShowNotice();
}

void frm_PictureEditor::tbx_FinalName_LostFocus() {
    if (Trimmed(*tbx_FinalName).empty()) tbx_FinalName->setText(Shown(finalNameBackup_));
}

void frm_PictureEditor::btn_Save_Click() {
    tbx_FinalName_LostFocus();
    settings::PictureHue.Write(hscHue->value());
    settings::PictureSaturation.Write(hscSaturation->value());
    settings::SaveAsBMP.Write(optBMP->isChecked());
    try {
        const FileKind kind = optBMP->isChecked() ? FileKind::Bmp : FileKind::Jpeg;
        editPicture_ = SaveRecoloured(result_, {editPicture_, picture_, finalName_, kind});
    } catch (const Failure& failure) {
        return ShowNotice(failure.description());
    }
    isCanceled_ = false;
    close();
}

/// Shows only the failure; without one, what a save loses and what it replaces.
void frm_PictureEditor::ShowNotice(const std::string& failure) {
    std::string text = failure.empty() ? loss_ : failure;
    Attempt([&] {
        const std::string target =
            TargetPath(finalName_, optBMP->isChecked() ? FileKind::Bmp : FileKind::Jpeg);
        const std::string name = GetFileName(target);
        if (!failure.empty() || EqualText(name, GetFileName(picture_)) || !FileExists(target)) return;
        if (!text.empty()) text += '\n';
        text += "The skin has a picture " + Quoted(name) + "; saving replaces it.";
    });
    QPalette colours = palette();
    if (!failure.empty()) colours.setColor(QPalette::WindowText, QColor(0xA0, 0x10, 0x10));
    lbl_Notice->setPalette(colours);
    lbl_Notice->setText(Shown(text));
}

void frm_PictureEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        btn_Save->PerformClick();
    else
        Form::keyPressEvent(event);
}

void frm_PictureEditor::Form_Unload() {
    isLoading_ = false;
    emit Unloaded();
}

}  // namespace ornavo
