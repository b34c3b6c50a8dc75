// SPDX-License-Identifier: MIT
#include "canvas/frm_toolbox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include "base/failure.h"
#include "base/numbers.h"
#include "canvas/anchors.h"
#include "canvas/element_families.h"
#include "canvas/new_elements.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "editor/settings_keys.h"
#include "editor/skin_drop.h"
#include "platform/panel_scale.h"
#include "render/view_switches.h"

namespace ornavo {
namespace {

constexpr int PictureSize = 32, SmallPictureSize = 16;  // pixels
constexpr int Margin = 4, RowGap = 2;
constexpr int LeastColumn = 76;  // wide enough for the window's title
constexpr int SpacingWidth = 64;
constexpr int CheckHeight = 16, SpacingHeight = 20,
              CommandHeight = 23;  // small, so that the magnifier has room below

QFrame* Separator(QWidget* parent, const char* name) {
    auto* line = new QFrame(parent);
    line->setObjectName(QLatin1String(name));
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

/// The integer in the text, at least 1; 1 if the text is not a number.
int SpacingOf(const QString& text) {
    int spacing = 0;
    Attempt([&] { spacing = ToLong(ToNumber(text.toStdString())); });
    return std::max(1, spacing);
}

void ShowChecked(QCheckBox* box, bool checked) {
    const QSignalBlocker quiet(box);
    box->setChecked(checked);
}

}  // namespace

frm_Toolbox::frm_Toolbox(CanvasParts& parts) : Form(&parts.form, "frm_Toolbox", Qt::Tool), parts_(parts) {
    setWindowTitle(QStringLiteral("Toolbox"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    new SkinDrop(*this, parts_.windows);
    // In the order of the Tab key.
    btn_AddButton = Command("btn_AddButton", "Button", "add_button", PictureSize, "Add a button");
    btn_AddGraphic = Command("btn_AddGraphic", "Graphic", "add_graphic", PictureSize, "Add a picture");
    btn_AddVolume = Command("btn_AddVolume", "Volume", "add_volume", PictureSize, "Add a volume control");
    btn_AddInfo = Command("btn_AddInfo", "Info", "add_info", PictureSize, "Add an info field");
    chk_ShowShape = Check("chk_ShowShape", "Show Shape", "Show Shape Polygon");
    chk_ShapeInverted = Check("chk_ShapeInverted", "Shape Inverted", "Show Shape inverted");
    chk_ShowElements = Check("chk_ShowElements", "Show Elements", "Show Jukebox Elements");
    chk_ShowPoints = Check("chk_ShowPoints", "Show Points", "Show Shape Points");
    chk_ShowLines = Check("chk_ShowLines", "Show Lines", "Show Shape Lines");
    chk_ShowGrid = Check("chk_ShowGrid", "Show Grid", "Show the grid's dots");
    chk_SnapGrid = Check("chk_SnapGrid", "Snap To Grid", "Let drags and handles keep to the grid");
    tbx_GridX = Spacing("tbx_GridX", "Grid spacing in pixels, across");
    tbx_GridY = Spacing("tbx_GridY", "Grid spacing in pixels, down");
    btn_Preview = Command("btn_Preview", "&Preview (F5)", "preview", SmallPictureSize,
                          "Show the layout as the jukebox does (F5)");
    btn_ResetView = Command("btn_ResetView", "&Reset View", "reset_view", SmallPictureSize,
                            "Give the window the skin's own size");
    btn_Magnifier = Command("btn_Magnifier", "&Magnifier", "magnifier", SmallPictureSize,
                            "Show the screen about the pointer enlarged, or no longer");
    Arrange();
    Connect();
    EnableAdders();
    parts_.composed = [this] { EnableAdders(); };
}

// Hiding ends the editing of a box that has the focus while the handlers still exist.
frm_Toolbox::~frm_Toolbox() {
    hide();
    parts_.composed = nullptr;
}

void frm_Toolbox::EnableAdders() {
    for (TileCommand* command : {btn_AddButton, btn_AddGraphic, btn_AddVolume, btn_AddInfo})
        command->setEnabled(LayoutIsOpen());
}

TileCommand* frm_Toolbox::Command(const char* name, const char* caption, const char* picture, int size,
                                  const char* tip) {
    auto* command = new TileCommand(this, name);
    command->SetCaption(QLatin1String(caption));
    command->SetPicture(QStringLiteral(":/pictures/%1.png").arg(QLatin1String(picture)),
                        PanelScale(*this)(size));
    command->setToolTip(QLatin1String(tip));
    command->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return command;
}

QCheckBox* frm_Toolbox::Check(const char* name, const char* caption, const char* tip) {
    auto* box = new QCheckBox(QLatin1String(caption), this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(QLatin1String(tip));
    box->setFixedHeight(PanelScale(*this)(CheckHeight));
    return box;
}

QLineEdit* frm_Toolbox::Spacing(const char* name, const char* says) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(QLatin1String(says));
    box->setToolTip(QLatin1String(says));
    box->setFixedSize(PanelScale(*this)(QSize(SpacingWidth, SpacingHeight)));
    box->setAlignment(Qt::AlignRight);
    return box;
}

void frm_Toolbox::Arrange() {
    const PanelScale scale(*this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Margin, Margin, Margin, Margin);
    grid->setSpacing(RowGap);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    for (const int column : {0, 1}) grid->setColumnMinimumWidth(column, scale(LeastColumn));
    int row = 0;
    TileCommand* const adding[] = {btn_AddButton, btn_AddGraphic, btn_AddVolume, btn_AddInfo};
    for (int i = 0; i < 4; ++i) {
        adding[i]->SetPictureAbove(true);
        grid->addWidget(adding[i], row + i / 2, i % 2);
    }
    row += 2;
    const auto across = [&](QWidget* widget) { grid->addWidget(widget, row++, 0, 1, 2); };
    across(Separator(this, "Line1"));
    for (QCheckBox* box : {chk_ShowShape, chk_ShapeInverted, chk_ShowElements, chk_ShowPoints, chk_ShowLines,
                           chk_ShowGrid, chk_SnapGrid})
        across(box);
    lbl_Horizontal = new QLabel(QStringLiteral("Horizontal"), this);
    lbl_Vertical = new QLabel(QStringLiteral("Vertical"), this);
    const std::pair<QLabel*, QLineEdit*> spacings[] = {{lbl_Horizontal, tbx_GridX},
                                                       {lbl_Vertical, tbx_GridY}};
    for (const auto& [label, box] : spacings) {
        label->setBuddy(box);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row++, 1, Qt::AlignRight);
    }
    across(Separator(this, "Line2"));
    for (TileCommand* command : {btn_Preview, btn_ResetView, btn_Magnifier})
        command->setFixedHeight(scale(CommandHeight));
    across(btn_Preview);
    grid->addWidget(btn_ResetView, row, 0);
    grid->addWidget(btn_Magnifier, row, 1);
}

void frm_Toolbox::Connect() {
    const std::pair<TileCommand*, int> adding[] = {{btn_AddButton, TypeButton},
                                                   {btn_AddGraphic, TypePicture},
                                                   {btn_AddVolume, TypeVolume},
                                                   {btn_AddInfo, TypeInfo}};
    for (const auto& [command, type] : adding)
        connect(command, &TileCommand::Click, this, [this, type = type] { AddElement(parts_, type); });
    connect(btn_Preview, &TileCommand::Click, this, [this] { parts_.windows.ShowPreview(); });
    connect(btn_ResetView, &TileCommand::Click, this, [this] { parts_.canvas.ResetFormToOriginal(); });
    connect(btn_Magnifier, &TileCommand::Click, this, [this] { parts_.windows.ToggleMagnifier(); });
    Switch(chk_ShowShape, viewSwitches.ShowShape, &frm_Toolbox::Recompose);
    Switch(chk_ShapeInverted, viewSwitches.ShapeInverted, &frm_Toolbox::Recompose);
    Switch(chk_ShowLines, viewSwitches.ShowLines, &frm_Toolbox::Recompose);
    Switch(chk_ShowPoints, viewSwitches.ShowPoints, &frm_Toolbox::Recompose);
    Switch(chk_ShowElements, viewSwitches.ShowElements, &frm_Toolbox::ShowElementsChanged);
    Switch(chk_ShowGrid, viewSwitches.ShowGrid, &frm_Toolbox::RepaintGrid);
    connect(chk_SnapGrid, &QCheckBox::toggled, this, [](bool on) { viewSwitches.SnapGrid = on; });
    connect(tbx_GridX, &QLineEdit::editingFinished, this,
            [this] { SpacingLeft(*tbx_GridX, viewSwitches.GridX); });
    connect(tbx_GridY, &QLineEdit::editingFinished, this,
            [this] { SpacingLeft(*tbx_GridY, viewSwitches.GridY); });
}

void frm_Toolbox::Open() {
    if (!loaded_) {  // a window that was only hidden keeps its place
        Form_Load();
        parts_.windows.ArrangeTools();
    }
    loaded_ = true;
    show();
}

/// Sets each control from its switch without signals, then repaints the canvas once.
void frm_Toolbox::Form_Load() {
    adjustSize();
    Rect place = TwipBounds();
    place.left = settings::ToolboxLeft.ReadOrStandard();
    place.top = settings::ToolboxTop.ReadOrStandard();
    MoveTwips(place);
    ShowChecked(chk_ShowShape, viewSwitches.ShowShape);
    ShowChecked(chk_ShapeInverted, viewSwitches.ShapeInverted);
    ShowChecked(chk_ShowElements, viewSwitches.ShowElements);
    ShowChecked(chk_ShowPoints, viewSwitches.ShowPoints);
    ShowChecked(chk_ShowLines, viewSwitches.ShowLines);
    ShowChecked(chk_ShowGrid, viewSwitches.ShowGrid);
    ShowChecked(chk_SnapGrid, viewSwitches.SnapGrid);
    tbx_GridX->setText(QString::number(viewSwitches.GridX));
    tbx_GridY->setText(QString::number(viewSwitches.GridY));
    RepaintGrid();
}

void frm_Toolbox::Form_Unload() {
    loaded_ = false;
    const Rect place = TwipBounds();
    settings::ToolboxLeft.Write(place.left);
    settings::ToolboxTop.Write(place.top);
}

void frm_Toolbox::UpdateCurrentLayout(bool setDirty) {
    if (setDirty) objSkin->Dirty = true;
    parts_.canvas.UpdateCurrentLayout();
}

void frm_Toolbox::Switch(QCheckBox* box, bool& viewSwitch, void (frm_Toolbox::*refresh)()) {
    connect(box, &QCheckBox::toggled, this, [this, &viewSwitch, refresh](bool on) {
        if (parts_.drag.IsPlacing()) return;
        viewSwitch = on;
        (this->*refresh)();
    });
}

void frm_Toolbox::ShowElementsChanged() {
    if (const Control* selected = parts_.selection.SelControl(); selected && ElementsAreHidden(*selected))
        parts_.anchors.ResetSelection();
    if (!viewSwitches.ShowElements) parts_.anchors.HideAnchors();
    Recompose();
    // An element that was added while elements were hidden is selected now.
    if (Control* selected = parts_.selection.SelControl(); selected && FamilyOf(*selected))
        parts_.anchors.SelectWithAnchors(*selected);
}

void frm_Toolbox::RepaintGrid() {
    parts_.showGrid();
}

void frm_Toolbox::SpacingLeft(QLineEdit& box, int& spacing) {
    spacing = SpacingOf(box.text());
    box.setText(QString::number(spacing));
    if (!parts_.drag.IsPlacing()) RepaintGrid();
}

}  // namespace ornavo
