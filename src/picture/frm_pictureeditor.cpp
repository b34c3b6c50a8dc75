// SPDX-License-Identifier: MIT
#include "picture/frm_pictureeditor.h"

#include <QBoxLayout>
#include <QEventLoop>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>

#include "base/failure.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "document/current_skin.h"
#include "editor/selection.h"
#include "editor/settings_keys.h"
#include "picture/picture_saving.h"
#include "picture/presets.h"
#include "platform/prompts.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

constexpr int Margin = 12, Gap = 8, RowGap = 14;  // pixels
constexpr QSize UsualSize = {1000, 660}, ButtonSize = {104, 26};
constexpr int SwatchSize = 14;
constexpr int RoomOfScreen = 92;  // percent

/// What a see-through picture is put on: the background of the element that shows it, else white.
struct Ground {
    QColor colour = Qt::white;
    std::string name = "white";
};

Ground GroundOfSelection() {
    const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Find(SelKey);
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
    icon.addPixmap(pixmap, QIcon::Selected);  // not tinted
    return icon;
}

std::string Trimmed(const QLineEdit& box) {
    return std::string(TrimBlanks(box.text().toStdString()));
}

std::string Quoted(const std::string& text) {
    return std::string("\"").append(text).append("\"");
}

QString Shown(const std::string& text) {
    return QString::fromStdString(text);
}

QLabel* Label(const char* name, const char* caption, QWidget* buddy = nullptr) {
    auto* label = new QLabel(QLatin1String(caption));
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

TileCommand* Command(QWidget* parent, const char* name, const char* caption) {
    auto* command = new TileCommand(parent, name);
    command->SetCaption(QLatin1String(caption));
    command->setMinimumSize(ButtonSize);
    return command;
}

QLabel* ValueLabel(const char* name) {
    QLabel* label = Label(name, "");
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    return label;
}

/// In the middle of its owner, as large as usual where the screen has room.
void PlaceOver(QWidget& window, const QWidget* owner) {
    const QRect room = window.screen()->availableGeometry();
    window.resize(UsualSize.boundedTo(room.size() * RoomOfScreen / 100).expandedTo(window.minimumSizeHint()));
    QRect place = window.rect();
    place.moveCenter(owner ? owner->frameGeometry().center() : room.center());
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width())));
    place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() - place.height())));
    window.move(place.topLeft());
}

}  // namespace

frm_PictureEditor::frm_PictureEditor(QWidget* owner)
    : Form(owner, "frm_PictureEditor",
           Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
               Qt::WindowCloseButtonHint),
      picSource(new DibView("picSource", "Source", source_)),
      picResult(new DibView("picResult", "Result", result_)),
      hscHue(new ColourSlider("hscHue", "Hue")),
      hscSaturation(new ColourSlider("hscSaturation", "Saturation")),
      lblHueValue(ValueLabel("lblHueValue")),
      lblSaturationValue(ValueLabel("lblSaturationValue")),
      lbl_Presets(Label("lbl_Presets", " Color Presets")),
      lstPresets(new QListWidget),
      btn_SavePreset(Command(this, "btn_SavePreset", "S&ave Preset")),
      btn_DeletePreset(Command(this, "btn_DeletePreset", "&Delete Preset")),
      fraOptions(new QGroupBox(QStringLiteral("Save Options"))),
      tbx_FinalName(new QLineEdit),
      optBMP(new QRadioButton(QStringLiteral("BMP"))),
      optJPG(new QRadioButton(QStringLiteral("JPEG"))),
      btn_Save(Command(this, "btn_Save", "&Save")),
      btn_Cancel(Command(this, "btn_Cancel", "&Cancel")),
      lbl_Notice(Label("lbl_Notice", "")) {
    setWindowTitle(QStringLiteral("Picture Editor"));
    setWindowModality(Qt::ApplicationModal);
    Arrange();
    Connect();
}

QWidget* frm_PictureEditor::ColourBox() {
    auto* box = new QGroupBox(QStringLiteral("Color"));
    auto* grid = new QGridLayout(box);
    grid->setVerticalSpacing(RowGap);
    grid->addWidget(Label("lblHue", "&Hue", hscHue), 0, 0);
    grid->addWidget(hscHue, 0, 1);
    grid->addWidget(lblHueValue, 0, 2);
    grid->addWidget(Label("lblSaturation", "&Saturation", hscSaturation), 1, 0);
    grid->addWidget(hscSaturation, 1, 1);
    grid->addWidget(lblSaturationValue, 1, 2);
    grid->setRowStretch(2, 1);
    return box;
}

QWidget* frm_PictureEditor::PresetBox() {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(lbl_Presets, 0, 0);
    grid->addWidget(lstPresets, 1, 0, 3, 1);
    grid->addWidget(btn_SavePreset, 1, 1);
    grid->addWidget(btn_DeletePreset, 2, 1);
    grid->setRowStretch(3, 1);
    lbl_Presets->setBuddy(lstPresets);
    lstPresets->setObjectName(QStringLiteral("lstPresets"));
    lstPresets->setAccessibleName(QStringLiteral("Color Presets"));
    lstPresets->setMinimumSize(120, 96);
    lstPresets->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    return box;
}

QWidget* frm_PictureEditor::OptionsBox() {
    auto* grid = new QGridLayout(fraOptions);
    grid->setVerticalSpacing(RowGap);
    fraOptions->setObjectName(QStringLiteral("fraOptions"));
    tbx_FinalName->setObjectName(QStringLiteral("tbx_FinalName"));
    tbx_FinalName->setAccessibleName(QStringLiteral("Save As"));
    tbx_FinalName->setMinimumWidth(150);
    optBMP->setObjectName(QStringLiteral("optBMP"));
    optJPG->setObjectName(QStringLiteral("optJPG"));
    grid->addWidget(Label("lbl_SaveAs", "Save As", tbx_FinalName), 0, 0);
    grid->addWidget(tbx_FinalName, 0, 1, 1, 2);
    grid->addWidget(optBMP, 1, 1);
    grid->addWidget(optJPG, 1, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(2, 1);
    return fraOptions;
}

void frm_PictureEditor::Arrange() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->setSpacing(Gap);
    auto* pictures = new QGridLayout;
    pictures->setSpacing(Gap / 2);
    pictures->setHorizontalSpacing(Gap);
    pictures->addWidget(Label("lbl_Source", "Source"), 0, 0);
    pictures->addWidget(Label("lbl_Result", "Result"), 0, 1);
    pictures->addWidget(picSource, 1, 0);
    pictures->addWidget(picResult, 1, 1);
    auto* boxes = new QHBoxLayout;
    boxes->setSpacing(Margin);
    boxes->addWidget(ColourBox(), 5);
    boxes->addWidget(PresetBox(), 2);
    boxes->addWidget(OptionsBox(), 2);
    auto* last = new QHBoxLayout;
    lbl_Notice->setWordWrap(true);
    lbl_Notice->setMinimumHeight(2 * lbl_Notice->fontMetrics().lineSpacing());
    last->addWidget(lbl_Notice, 1);
    last->addWidget(btn_Save, 0, Qt::AlignBottom);
    last->addWidget(btn_Cancel, 0, Qt::AlignBottom);
    grid->addLayout(pictures, 0, 0);
    grid->addLayout(boxes, 1, 0);
    grid->addLayout(last, 2, 0);
    grid->setRowStretch(0, 1);
    QWidget* const order[] = {hscHue,           hscSaturation, lstPresets, btn_SavePreset,
                              btn_DeletePreset, tbx_FinalName, optBMP,     optJPG,
                              btn_Save,         btn_Cancel,    picSource,  picResult};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

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
    bool asBmp = settings::SaveAsBMP.standard;
    Attempt([&] { asBmp = settings::SaveAsBMP.Read(); });
    Attempt([&] { hscHue->setValue(settings::PictureHue.Read()); });
    Attempt([&] { hscSaturation->setValue(settings::PictureSaturation.Read()); });
    (asBmp ? optBMP : optJPG)->setChecked(true);
    hscHue->setFocus();
    isLoading_ = false;
    picSource->Refresh();
    result_.Create(source_.Width(), source_.Height());
    Redraw();
    ShowNotice();
}

void frm_PictureEditor::LoadSource() {
    const PictureRef picture = LoadSkinPicture(editPicture_);
    const Ground ground = GroundOfSelection();
    const QImage flat = picture ? Flattened(picture->image, ground.colour) : QImage();
    const bool loaded = !flat.isNull() && source_.CreateFromPicture(flat.constBits(), flat.width(),
                                                                    flat.height(), flat.bytesPerLine());
    btn_Save->setEnabled(loaded);
    if (!loaded)
        loss_ = Quoted(GetFileName(editPicture_)) + " can't be opened as a picture.";
    else if (IsAnimatedGIF(picture->path))
        loss_ = "The picture is animated and the saved one can't be: it is the first frame. ";
    if (loaded && IsSeeThrough(picture->image))
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
    if (index >= presets.size()) return;  // another running Ornavo has deleted some
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

/// A failure alone; otherwise what the save loses and what it replaces.
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
