// SPDX-License-Identifier: MIT
// Makes and arranges the controls of the picture editor; frm_pictureeditor.cpp has what they do.
#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "picture/frm_pictureeditor.h"
#include "platform/panel_scale.h"

namespace ornavo {
namespace {

constexpr int Margin = 12, Gap = 8, RowGap = 14;  // pixels
constexpr QSize ButtonSize = {104, 26};

QLabel* MakeLabel(const char* name, const char* caption, QWidget* buddy = nullptr) {
    auto* label = new QLabel(QLatin1String(caption));
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    return label;
}

TileCommand* MakeCommand(QWidget* parent, const char* name, const char* caption) {
    auto* command = new TileCommand(parent, name);
    command->SetCaption(QLatin1String(caption));
    command->setMinimumSize(PanelScale(*parent)(ButtonSize));
    return command;
}

QLabel* ValueLabel(const char* name) {
    QLabel* label = MakeLabel(name, "");
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    return label;
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
      lbl_Presets(MakeLabel("lbl_Presets", " Color Presets")),
      lstPresets(new QListWidget),
      btn_SavePreset(MakeCommand(this, "btn_SavePreset", "S&ave Preset")),
      btn_DeletePreset(MakeCommand(this, "btn_DeletePreset", "&Delete Preset")),
      fraOptions(new QGroupBox(QStringLiteral("Save Options"))),
      tbx_FinalName(new QLineEdit),
      optBMP(new QRadioButton(QStringLiteral("BMP"))),
      optJPG(new QRadioButton(QStringLiteral("JPEG"))),
      btn_Save(MakeCommand(this, "btn_Save", "&Save")),
      btn_Cancel(MakeCommand(this, "btn_Cancel", "&Cancel")),
      lbl_Notice(MakeLabel("lbl_Notice", "")) {
    setWindowTitle(QStringLiteral("Picture Editor"));
    setWindowModality(Qt::ApplicationModal);
    Arrange();
    Connect();
}

QWidget* frm_PictureEditor::ColourBox() {
    auto* box = new QGroupBox(QStringLiteral("Color"));
    auto* grid = new QGridLayout(box);
    grid->setVerticalSpacing(RowGap);
    grid->addWidget(MakeLabel("lblHue", "&Hue", hscHue), 0, 0);
    grid->addWidget(hscHue, 0, 1);
    grid->addWidget(lblHueValue, 0, 2);
    grid->addWidget(MakeLabel("lblSaturation", "&Saturation", hscSaturation), 1, 0);
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
    lstPresets->setMinimumSize(PanelScale(*this)(QSize(120, 96)));
    lstPresets->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    return box;
}

QWidget* frm_PictureEditor::OptionsBox() {
    auto* grid = new QGridLayout(fraOptions);
    grid->setVerticalSpacing(RowGap);
    fraOptions->setObjectName(QStringLiteral("fraOptions"));
    tbx_FinalName->setObjectName(QStringLiteral("tbx_FinalName"));
    tbx_FinalName->setAccessibleName(QStringLiteral("Save As"));
    tbx_FinalName->setMinimumWidth(PanelScale(*this)(150));
    optBMP->setObjectName(QStringLiteral("optBMP"));
    optJPG->setObjectName(QStringLiteral("optJPG"));
    grid->addWidget(MakeLabel("lbl_SaveAs", "Save As", tbx_FinalName), 0, 0);
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
    pictures->addWidget(MakeLabel("lbl_Source", "Source"), 0, 0);
    pictures->addWidget(MakeLabel("lbl_Result", "Result"), 0, 1);
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

}  // namespace ornavo
