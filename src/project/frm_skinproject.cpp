// SPDX-License-Identifier: MIT
#include "project/frm_skinproject.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWindow>

#include "base/failure.h"
#include "base/paths.h"
#include "editor/open_skin.h"
#include "editor/selection.h"
#include "editor/settings_keys.h"
#include "editor/skin_drop.h"
#include "platform/panel_scale.h"
#include "platform/prompts.h"
#include "platform/shown.h"
#include "project/layout_copy.h"
#include "project/layout_steps.h"

namespace ornavo {
namespace {

constexpr int PanelWidth = 3045;  // twips, outside
constexpr int Margin = 4, Gap = 2, ButtonHeight = 21, PictureHeight = 29, PictureSize = 24,
              ListHeight = 40;  // pixels

TileCommand* PictureButton(QWidget* parent, const char* name, const char* what, const char* picture) {
    auto* button = new TileCommand(parent, name);
    button->SetPicture(QString(":/pictures/") + picture + ".png", PanelScale(*parent)(PictureSize));
    button->setAccessibleName(what);
    button->setToolTip(what);
    button->setFixedHeight(PanelScale(*parent)(PictureHeight));
    return button;
}

TileCommand* CaptionButton(QWidget* parent, const char* name, const char* caption, const char* what) {
    auto* button = new TileCommand(parent, name);
    button->SetCaption(caption);
    button->setToolTip(what);
    button->setFixedHeight(PanelScale(*parent)(ButtonHeight));
    return button;
}

}  // namespace

frm_SkinProject::frm_SkinProject(QWidget* owner, Windows& windows, Canvas& canvas, SkinFiles files)
    : Form(owner, "frm_SkinProject", Qt::Tool), windows_(windows), canvas_(canvas), files_(std::move(files)) {
    setWindowTitle("Skin Project");
    setAttribute(Qt::WA_ShowWithoutActivating);
    new SkinDrop(*this, windows);
    MakeControls();
    LayOut();
    connect(tbx_SkinName, &QLineEdit::editingFinished, this, &frm_SkinProject::tbx_SkinName_LostFocus);
    connect(btn_OpenSkin, &TileCommand::Click, this, &frm_SkinProject::btn_OpenSkin_Click);
    connect(btn_CreateNewSkin, &TileCommand::Click, this, &frm_SkinProject::btn_CreateNewSkin_Click);
    connect(btn_SaveSkin, &TileCommand::Click, this, &frm_SkinProject::SaveSkin);
    connect(btn_SkinProperties, &TileCommand::Click, this, &frm_SkinProject::btn_SkinProperties_Click);
    connect(btn_CloneLayout, &TileCommand::Click, this, &frm_SkinProject::btn_CloneLayout_Click);
    connect(btn_SaveToSkin, &TileCommand::Click, this, &frm_SkinProject::btn_SaveToSkin_Click);
    connect(lst_Layouts, &LayoutList::ItemClick, this, &frm_SkinProject::lst_Layouts_ItemClick);
    connect(lst_Layouts, &LayoutList::DeletePressed, this, &frm_SkinProject::lst_Layouts_Delete);
    connect(lst_Layouts, &LayoutList::AfterLabelEdit, this, &frm_SkinProject::lst_Layouts_AfterLabelEdit);
    Form_Load();
}

frm_SkinProject::~frm_SkinProject() {
    // A box with the focus loses it when the window is destroyed, and would then call the destroyed window.
    tbx_SkinName->disconnect(this);
}

void frm_SkinProject::MakeControls() {
    btn_OpenSkin = PictureButton(this, "btn_OpenSkin", "Open Skin", "open_skin");
    btn_CreateNewSkin = PictureButton(this, "btn_CreateNewSkin", "Create new Skin", "new_skin");
    btn_SaveSkin = PictureButton(this, "btn_SaveSkin", "Save Skin", "save_skin");
    btn_SaveSkin->setToolTip("Save Skin (Ctrl+S)");
    tbx_SkinName = new QLineEdit(this);
    tbx_SkinName->setObjectName("tbx_SkinName");
    tbx_SkinName->setAccessibleName("Skin Name");
    tbx_SkinName->setToolTip("Name of the skin and of its folder; another name saves a copy");
    tbx_SkinName->setAcceptDrops(false);
    lst_Layouts = new LayoutList(this);
    lst_Layouts->setObjectName("lst_Layouts");
    lst_Layouts->setAccessibleName("Layouts");
    lst_Layouts->setMinimumHeight(PanelScale(*this)(ListHeight));
    lbl_Damage = new QLabel(this);
    lbl_Damage->setObjectName("lbl_Damage");
    lbl_Damage->setTextFormat(Qt::PlainText);
    lbl_Damage->hide();
    btn_SkinProperties = CaptionButton(this, "btn_SkinProperties", "General Skin Properties",
                                       "Show the preferences of the whole skin");
    btn_CloneLayout =
        CaptionButton(this, "btn_CloneLayout", "Clone Layout", "Copy the layout; this saves the skin");
    btn_SaveToSkin = CaptionButton(this, "btn_SaveToSkin", "Insert Layout to Skin",
                                   "Copy the layout into another skin's file");
}

void frm_SkinProject::LayOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Gap);
    auto* pictures = new QHBoxLayout;
    for (TileCommand* button : {btn_OpenSkin, btn_CreateNewSkin, btn_SaveSkin}) pictures->addWidget(button);
    column->addLayout(pictures);
    column->addWidget(tbx_SkinName);
    column->addWidget(lst_Layouts, 1);
    column->addWidget(lbl_Damage);
    for (TileCommand* button : {btn_SkinProperties, btn_CloneLayout, btn_SaveToSkin})
        column->addWidget(button);
    QWidget* const order[] = {btn_OpenSkin, btn_CreateNewSkin,  btn_SaveSkin,    tbx_SkinName,
                              lst_Layouts,  btn_SkinProperties, btn_CloneLayout, btn_SaveToSkin};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frm_SkinProject::Form_Load() {
    EnableSkinControls(false);
    const PanelScale scale(*this);
    MoveTwips({settings::SkinProjectLeft.ReadOrStandard(), settings::SkinProjectTop.ReadOrStandard(),
               scale(PanelWidth), scale(settings::SkinProjectHeight.ReadOrStandard())});
    setFixedWidth(width());
}

void frm_SkinProject::Form_Resize() {
    const Rect now = TwipBounds();
    const int width = PanelScale(*this)(PanelWidth);
    if (now.width / TwipsPerPixel != width / TwipsPerPixel) MoveTwips({now.left, now.top, width, now.height});
}

void frm_SkinProject::EnableSkinControls(bool enabled) {
    for (QWidget* control : {static_cast<QWidget*>(btn_SaveSkin), static_cast<QWidget*>(tbx_SkinName),
                             static_cast<QWidget*>(lst_Layouts), static_cast<QWidget*>(btn_SkinProperties)})
        control->setEnabled(enabled);
    EnableLayoutButtons(enabled);
}

void frm_SkinProject::EnableLayoutButtons(bool enabled) {
    btn_CloneLayout->setEnabled(enabled);
    btn_SaveToSkin->setEnabled(enabled);
}

void frm_SkinProject::ShowSkinProject(std::string_view key) {
    EnableSkinControls(true);
    tbx_SkinName->setText(Shown(objSkin->SkinName));
    tbx_SkinName->setCursorPosition(0);
    dbLayoutRef shown = objSkin->dbLayouts->Find(key);
    if (!shown && objSkin->dbLayouts->Count() > 0) shown = objSkin->dbLayouts->Item(1);
    if (shown) objCurrentLayout = shown;
    lst_Layouts->Fill(*objSkin->dbLayouts, shown ? shown->Key : "");
    ShowDamage();
    if (shown) windows_.ShowToolbox();
}

/// Shows what was lost of the skin's file: its beginning in the panel, all of it in the tool tip.
void frm_SkinProject::ShowDamage() {
    lbl_Damage->setVisible(!objSkin->Damage.empty());
    QStringList lines;
    for (const std::string& line : objSkin->Damage) lines += Shown(line);
    const QString text = "Damaged file. " + lines.join(' ');
    lbl_Damage->setText(lbl_Damage->fontMetrics().elidedText(text, Qt::ElideRight, width() - 2 * Margin));
    lbl_Damage->setToolTip("The skin's file is damaged.\n" + lines.join('\n'));
}

void frm_SkinProject::ShowReplacedSkin() {
    ShowSkinProject();
    canvas_.ResetFormToOriginal();
    canvas_.UpdateCurrentLayout();
}

void frm_SkinProject::ShowCurrentLayout() {
    canvas_.ResetSelection();
    canvas_.UpdateCurrentLayout();
}

void frm_SkinProject::LoadDebug(const SkinPlace& place) {
    files_.Open(place, [this] { canvas_.HideSelectionTools(); });
    ShowReplacedSkin();
}

void frm_SkinProject::FinishEdits() {
    lst_Layouts->FinishLabelEdit();
    tbx_SkinName_LostFocus();
    windows_.properties().DrawPendingEdits();
}

void frm_SkinProject::tbx_SkinName_LostFocus() {
    const QString clean = Shown(CleanFileName(tbx_SkinName->text().toStdString()));
    if (clean != tbx_SkinName->text()) tbx_SkinName->setText(clean);
}

void frm_SkinProject::btn_OpenSkin_Click() {
    const std::optional<SkinPlace> place = files_.AskForSkin();
    if (!place) return;
    try {
        LoadDebug(*place);
    } catch (const Failure& failure) {
        prompts().Message(failure.description(), LoadingError, Icon::Critical, Buttons::Ok);
    }
}

void frm_SkinProject::btn_CreateNewSkin_Click() {
    if (AddNewSkin) return;
    AddNewSkin = new frm_AddNewSkin(this, files_);
    connect(AddNewSkin, &frm_AddNewSkin::Created, this, [this] {
        canvas_.HideSelectionTools();
        ShowReplacedSkin();
    });
    AddNewSkin->show();
}

bool frm_SkinProject::SaveSkin() {
    if (!btn_SaveSkin->isEnabled()) return false;
    FinishEdits();
    const std::string typed = tbx_SkinName->text().toStdString();
    if (!IsPlainName(typed)) {
        prompts().Message("Please enter a Skin name!", "Ornavo", Icon::Exclamation, Buttons::Ok);
        tbx_SkinName->setFocus();
        return false;
    }
    if (!files_.SaveAs(typed)) return false;
    tbx_SkinName->setText(Shown(objSkin->SkinName));
    ShowDamage();
    canvas_.UpdateCurrentLayout();
    return true;
}

void frm_SkinProject::btn_SkinProperties_Click() {
    canvas_.ResetSelection();
    canvas_.selection().SelectSample(*btn_SkinProperties);
    windows_.properties().Open();
}

void frm_SkinProject::btn_CloneLayout_Click() {
    FinishEdits();
    if (!lst_Layouts->LayoutIsSelected()) return;
    const std::string copy = CloneLayout(lst_Layouts->SelectedKey(), files_);
    if (copy.empty()) return;
    ShowSkinProject(copy);
    ShowCurrentLayout();
}

void frm_SkinProject::btn_SaveToSkin_Click() {
    FinishEdits();
    if (!lst_Layouts->LayoutIsSelected()) return;
    const std::string key = lst_Layouts->SelectedKey();
    if (!InsertLayoutToSkin(key, files_)) return;
    ShowSkinProject(key);
    ShowCurrentLayout();
}

void frm_SkinProject::lst_Layouts_ItemClick() {
    EnableLayoutButtons(lst_Layouts->LayoutIsSelected());
    if (!lst_Layouts->LayoutIsSelected()) return;
    EnableSkinControls(true);
    objCurrentLayout = objSkin->dbLayouts->Item(lst_Layouts->SelectedKey());
    windows_.ShowToolbox();
    ShowCurrentLayout();
}

void frm_SkinProject::lst_Layouts_Delete() {
    const std::string key = lst_Layouts->SelectedKey();
    if (!DeleteLayout(key, lst_Layouts->SelectedText())) return;
    lst_Layouts->Remove(key);
    if (lst_Layouts->LayoutIsSelected()) return lst_Layouts_ItemClick();
    objCurrentLayout = std::make_shared<dbLayout>();
    ShowCurrentLayout();
    btn_SkinProperties->setEnabled(false);
    EnableLayoutButtons(false);
}

void frm_SkinProject::lst_Layouts_AfterLabelEdit(const QString& key, const QString& text) {
    if (text.isEmpty() || text == LayoutList::AddNewText) return;
    const std::string layoutKey = key.toStdString(), name = text.toStdString();
    if (key != LayoutList::AddNewKey) {
        RenameLayout(layoutKey, name);
        lst_Layouts->Rename(layoutKey, objSkin->dbLayouts->Item(layoutKey)->LayoutName);
        canvas_.UpdateCaption();
        return;
    }
    canvas_.ResetSelection();
    if (!AddLayout(name)) return;
    canvas_.UpdateCurrentLayout();
    lst_Layouts->Add(*objCurrentLayout);
    EnableSkinControls(true);
}

frm_SkinProject::Unload frm_SkinProject::AskToSave() {
    FinishEdits();
    const Answer answer = AskAboutChanges();
    if (answer == Answer::Cancel) return Unload::Cancelled;
    if (answer == Answer::Yes) return SaveSkin() ? Unload::Done : Unload::SaveFailed;
    files_.KeepDropped();
    return Unload::Done;
}

void frm_SkinProject::Hide() {
    KeepPlace();
    hide();
}

void frm_SkinProject::AskAtEnd() {
    if (isVisible()) {
        close();
        return;
    }
    lastUnload_ = AskToSave();
    if (lastUnload_ != Unload::Done) show();
}

bool frm_SkinProject::Form_QueryUnload() {
    lastUnload_ = AskToSave();
    KeepPlace();
    return lastUnload_ == Unload::Done;
}

void frm_SkinProject::KeepPlace() const {
    const Rect bounds = TwipBounds();
    settings::SkinProjectLeft.Write(bounds.left);
    settings::SkinProjectTop.Write(bounds.top);
    settings::SkinProjectHeight.Write(PanelScale(*this).Designed(bounds.height));
}

void frm_SkinProject::StandAlone() {
    const QPoint corner = Corner();
    setParent(nullptr, Qt::Window);
    setAttribute(Qt::WA_QuitOnClose);
    for (QWidget* control : {static_cast<QWidget*>(btn_OpenSkin), static_cast<QWidget*>(btn_CreateNewSkin),
                             static_cast<QWidget*>(lst_Layouts), static_cast<QWidget*>(btn_SkinProperties)})
        control->setEnabled(false);
    EnableLayoutButtons(false);
    setAcceptDrops(false);
    show();
    // The new native window would be placed without its frame, higher by the height of the title.
    windowHandle()->setFramePosition(corner);
}

void frm_SkinProject::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F5 && parentWidget())
        windows_.ShowPreview();
    else if (event->key() == Qt::Key_S && event->modifiers() == Qt::ControlModifier)
        SaveSkin();
    else
        Form::keyPressEvent(event);
}

}  // namespace ornavo
