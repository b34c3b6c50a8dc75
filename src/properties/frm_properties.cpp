// SPDX-License-Identifier: MIT
#include "properties/frm_properties.h"

#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "base/failure.h"
#include "document/current_skin.h"
#include "document/shape_edits.h"
#include "editor/settings_keys.h"
#include "platform/panel_scale.h"
#include "properties/element_sheet.h"
#include "properties/live_update.h"
#include "properties/pref_sheet.h"
#include "properties/rows.h"

namespace ornavo {
namespace {

constexpr int UpdateInterval = 100;  // milliseconds
constexpr int LeastWidth = 200;      // pixels

/// Height of title and frame in pixels. The desktop reports it only for a window that it has shown.
int FrameHeight(const QWidget& window) {
    return std::max(window.frameGeometry().height() - window.height(),
                    2 * screenMetrics.SM_CYFRAME + screenMetrics.SM_CYSMCAPTION);
}

}  // namespace

frm_Properties::frm_Properties(QWidget* owner, Windows& windows, Canvas& canvas)
    : Form(owner, "frm_Properties", Qt::Tool),
      parts_{*this, canvas, canvas.selection(), windows, pools_, tmrUpdate},
      edits_(parts_),
      scroll_(this),
      sheet_(scroll_),
      pools_(sheet_, edits_) {
    setWindowTitle(QStringLiteral("Properties"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    scroll_.setFrameShape(QFrame::NoFrame);
    scroll_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(PanelScale(*this)(LeastWidth));
    tmrUpdate.setInterval(UpdateInterval);
    tmrUpdate.setSingleShot(true);
    connect(&tmrUpdate, &QTimer::timeout, this, [this] { tmrUpdate_Timer(parts_); });
    Form_Load();
}

frm_Properties::~frm_Properties() {
    parts_.IsBuilding = true;
    hide();
}

void frm_Properties::Form_Load() {
    const Raised building(parts_.IsBuilding);
    MoveTwips({settings::PropertiesLeft.ReadOrStandard(), settings::PropertiesTop.ReadOrStandard(),
               PanelScale(*this)(settings::PropertiesWidth.ReadOrStandard()),
               settings::PropertiesWidth.standard});
    home_ = shown_ = Corner();
}

void frm_Properties::Form_Unload() {
    DrawPendingEdits();
    const QPoint corner = Corner() == shown_ ? home_ : Corner();
    settings::PropertiesLeft.Write(corner.x() * TwipsPerPixel);
    settings::PropertiesTop.Write(corner.y() * TwipsPerPixel);
    settings::PropertiesWidth.Write(PanelScale(*this).Designed(TwipBounds().width));
}

void frm_Properties::Form_Activate() {
    parts_.windows.ShowToolbox();
}

void frm_Properties::Form_Resize() {
    scroll_.setGeometry(rect());
    if (!parts_.IsBuilding) ShowProperties();
}

void frm_Properties::Open() {
    ShowProperties();
    if (isVisible()) return;
    const Raised building(parts_.IsBuilding);
    show();
}

void frm_Properties::Hide() {
    DrawPendingEdits();
    hide();
    parts_.BoundObject = {};
}

void frm_Properties::DrawPendingEdits() {
    // The caller may not have taken the focus from the row, so do what leaving it would do.
    if (const RowValue* focused = sheet_.Focused())
        if (auto* box = dynamic_cast<RowText*>(focused->control)) edits_.tbx_Prop_LostFocus(*box);
    if (tmrUpdate.isActive()) tmrUpdate_Timer(parts_);
}

void frm_Properties::ShowProperties() {
    if (!parts_.selection.SelControl()) return;
    const Raised building(parts_.IsBuilding);
    sheet_.setUpdatesEnabled(false);
    const RowValue* focused = sheet_.Focused();
    const std::string key = focused ? focused->key : "";
    const auto* box = focused ? dynamic_cast<QLineEdit*>(focused->control) : nullptr;
    const int cursor = box ? box->cursorPosition() : 0;
    // Hiding a row with the focus would pass the focus to the next row, one after the other.
    if (focused) focused->control->clearFocus();
    UnloadProperties();
    Attempt([&] { Build(SheetOf(parts_.selection)); });
    if (focused) sheet_.Focus(key);
    if (const RowValue* again = sheet_.Focused())
        if (auto* text = dynamic_cast<QLineEdit*>(again->control)) text->setCursorPosition(cursor);
    sheet_.setUpdatesEnabled(true);
}

Sheet frm_Properties::SheetOf(const Selection& selection) {
    const Control& control = *selection.SelControl();
    if (selection.IsCorner()) {
        const dbPointRef point = objCurrentLayout->dbPoints->GetFromOrder(OrderOfTag(control.Tag));
        parts_.BoundObject = point;
        return point ? PointSheet(*point) : Sheet();
    }
    if (const ElementFamily* family = FamilyOf(control)) {
        const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Find(control.Tag);
        parts_.BoundObject = element;
        return element ? ElementSheet(family->kind, *element) : Sheet();
    }
    return SampleSheet(*objSkin->dbSkinPrefs, control.Name, control.Bounds());
}

void frm_Properties::Build(const Sheet& sheet) {
    FitHeight(static_cast<int>(sheet.size()));
    const PanelScale scale(*this);
    const int height = static_cast<int>(sheet.size()) * scale(RowPitch) - 1;
    const bool scrolls = height > MostHeight();
    const int scaleWidth = ScaleWidth() - (scrolls ? scroll_.verticalScrollBar()->sizeHint().width() : 0);
    sheet_.resize(scaleWidth, std::max(height, 0));
    Rows rows(pools_, scaleWidth, scale);
    for (const SheetRow& row : sheet) rows.AddProperties(row);
    sheet_.SetValues(rows.Values());
}

/// The greatest inner height for the screen, in pixels.
int frm_Properties::MostHeight() const {
    return screen()->availableGeometry().height() - FrameHeight(*this);
}

/// Sets the height by the number of rows. If the panel would exceed the screen at the bottom, it is moved up
/// from its own place.
void frm_Properties::FitHeight(int rows) {
    if (Corner() != shown_) home_ = Corner();  // the user has moved it
    // The line below the last row coincides with the window's edge.
    const int pitch = PanelScale(*this)(RowPitch);
    const int wanted = std::clamp(rows * pitch - 1, pitch, std::max(MostHeight(), pitch));
    if (wanted != height() || wanted != minimumHeight()) setFixedHeight(wanted);
    const QRect room = screen()->availableGeometry();
    const int lowest = room.bottom() + 1 - wanted - FrameHeight(*this);
    shown_ = {home_.x(), std::min(home_.y(), std::max(lowest, room.top()))};
    if (shown_ != Corner()) MoveFrame(shown_);
}

void frm_Properties::UnloadProperties() {
    sheet_.SetValues({});
    pools_.UnloadProperties();
}

}  // namespace ornavo
