// SPDX-License-Identifier: MIT
#include "project/frm_addnewskin.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "editor/settings_keys.h"
#include "platform/panel_scale.h"
#include "platform/prompts.h"

namespace ornavo {
namespace {

constexpr int LeastSize = 600, SmallestKept = 601;  // pixels
constexpr int Longest = 9;                          // digits

/// The size in the box in pixels; LeastSize if it is smaller or not a number.
std::int32_t SizeOf(const QLineEdit& box) {
    const std::string text = box.text().toStdString();
    std::int32_t size = 0;
    Attempt([&] { size = ToLong(IsNumeric(text) ? ToNumber(text) : Val(text)); });
    return size < SmallestKept ? LeastSize : size;
}

void RepairSize(QLineEdit& box) {
    box.setText(QString::number(SizeOf(box)));
}

void ReadSize(QLineEdit& box, const Setting<int>& setting) {
    box.setMaxLength(Longest);
    box.setText(QString::number(setting.ReadOrStandard()));
    QObject::connect(&box, &QLineEdit::editingFinished, &box, [&box] { RepairSize(box); });
}

}  // namespace

frm_AddNewSkin::frm_AddNewSkin(QWidget* owner, SkinFiles& files)
    : Form(owner, "frm_AddNewSkin", Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      tbx_SkinName(new QLineEdit),
      tbx_Width(new QLineEdit),
      tbx_Height(new QLineEdit),
      btn_Create(new TileCommand(this, "btn_Create")),
      btn_Cancel(new TileCommand(this, "btn_Cancel")),
      files_(files) {
    setWindowTitle("Create new Skin");
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 12, 12, 12);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    const struct {
        const char* name;
        const char* caption;
        QLineEdit* box;
        const char* tip;
    } rows[] = {{"SkinName", "Skin Name", tbx_SkinName, "Name of the skin and of its folder"},
                {"Width", "Base Width", tbx_Width, "Width of the skin in pixels, at least 600"},
                {"Height", "Base Height", tbx_Height, "Height of the skin in pixels, at least 600"}};
    int row = 0;
    for (const auto& each : rows) {
        auto* label = new QLabel(each.caption);
        label->setObjectName(QString("lbl_") + each.name);
        label->setBuddy(each.box);
        each.box->setObjectName(QString("tbx_") + each.name);
        each.box->setAccessibleName(each.caption);
        each.box->setToolTip(each.tip);
        grid->addWidget(label, row, 0);
        grid->addWidget(each.box, row++, 1, 1, 2);
    }
    const PanelScale scale(*this);
    tbx_SkinName->setMinimumWidth(scale(220));
    btn_Create->SetCaption("&Create");
    btn_Cancel->SetCaption("&Cancel");
    for (TileCommand* button : {btn_Create, btn_Cancel}) button->setMinimumSize(scale(QSize(88, 26)));
    grid->setRowMinimumHeight(row++, 6);
    grid->setColumnStretch(1, 1);
    grid->addWidget(btn_Create, row, 1, Qt::AlignRight);
    grid->addWidget(btn_Cancel, row, 2);
    connect(btn_Create, &TileCommand::Click, this, &frm_AddNewSkin::btn_Create_Click);
    connect(btn_Cancel, &TileCommand::Click, this, &QWidget::close);
    QWidget* const order[] = {tbx_SkinName, tbx_Width, tbx_Height, btn_Create, btn_Cancel};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    Form_Load();
}

void frm_AddNewSkin::Form_Load() {
    ReadSize(*tbx_Width, settings::NewSkinWidth);
    ReadSize(*tbx_Height, settings::NewSkinHeight);
    tbx_SkinName->setFocus();
}

void frm_AddNewSkin::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        btn_Create->PerformClick();
    else
        Form::keyPressEvent(event);
}

void frm_AddNewSkin::btn_Create_Click() {
    const std::string name = CleanFileName(tbx_SkinName->text().toStdString());
    if (!IsPlainName(name) || TrimBlanks(name).empty()) {
        prompts().Message("Please enter a Skin name!", "Ornavo", Icon::Exclamation, Buttons::Ok);
        tbx_SkinName->setFocus();
        return;
    }
    RepairSize(*tbx_Width);
    RepairSize(*tbx_Height);
    files_.Create(name, SizeOf(*tbx_Width), SizeOf(*tbx_Height));
    settings::NewSkinWidth.Write(objSkin->SkinWidth);
    settings::NewSkinHeight.Write(objSkin->SkinHeight);
    close();
    emit Created();
}

}  // namespace ornavo
