// SPDX-License-Identifier: MIT
#include "properties/frm_properties.h"

#include "base/failure.h"
#include "editor/selection.h"
#include "editor/settings_keys.h"
#include "properties/choosers.h"
#include "properties/commit.h"
#include "properties/live_update.h"

namespace ornavo {
namespace {

constexpr int UpdateInterval = 100;  // milliseconds

}  // namespace

frm_Properties::frm_Properties(QWidget* owner, Windows& windows, Canvas& canvas)
    : Form(owner, "frm_Properties", Qt::Tool), scroll_(this), pools_(sheet_, *this), parts_{*this,     canvas,
                                                                                            windows,   pools_,
                                                                                            tmrUpdate, false,
                                                                                            {}} {
    setWindowTitle(QStringLiteral("Properties"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    scroll_.setFrameShape(QFrame::NoFrame);
    scroll_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_.setWidget(&sheet_);
    tmrUpdate.setInterval(UpdateInterval);
    tmrUpdate.setSingleShot(true);
    connect(&tmrUpdate, &QTimer::timeout, this, [this] { tmrUpdate_Timer(parts_); });
    Form_Load();
}

frm_Properties::~frm_Properties() {
    parts_.IsBuilding = true;
    hide();
    scroll_.takeWidget();
}

void frm_Properties::Form_Load() {
    const Raised building(parts_.IsBuilding);
    MoveTwips({settings::PropertiesLeft.standard, settings::PropertiesTop.standard,
               settings::PropertiesWidth.standard, settings::PropertiesWidth.standard});
    Attempt([&] {
        MoveTwips({settings::PropertiesLeft.Read(), settings::PropertiesTop.Read(),
                   settings::PropertiesWidth.Read(), settings::PropertiesWidth.standard});
    });
}

void frm_Properties::Form_Unload() {
    const Rect place = TwipBounds();
    settings::PropertiesLeft.Write(place.left);
    settings::PropertiesTop.Write(place.top);
    settings::PropertiesWidth.Write(place.width);
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

void frm_Properties::ShowProperties() {
    if (!SelControl) return;
    const Raised building(parts_.IsBuilding);
    UnloadProperties();
}

void frm_Properties::UnloadProperties() {
    pools_.UnloadProperties();
}

void frm_Properties::TextChanged(int index) {
    tbx_Prop_Change(parts_, index);
}

void frm_Properties::EnterPressed(int index) {
    tbx_Prop_KeyPress(parts_, index);
}

void frm_Properties::FocusLost(int index) {
    if (!parts_.IsBuilding) tbx_Prop_LostFocus(parts_, index);
}

void frm_Properties::CheckClicked(int index) {
    chk_Boolean_Click(parts_, index);
}

void frm_Properties::ComboClicked(int index) {
    cboProp_Click(parts_, index);
}

void frm_Properties::ButtonClicked(int index) {
    btn_Prop_Click(parts_, index);
}

void frm_Properties::PicEditClicked(int index) {
    btn_PicEdit_Click(parts_, index);
}

}  // namespace ornavo
