// SPDX-License-Identifier: MIT
#include "properties/commit.h"

#include <QColor>
#include <algorithm>

#include "base/failure.h"
#include "base/find_row.h"
#include "base/text.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "properties/choosers.h"
#include "properties/live_update.h"
#include "properties/panel_parts.h"
#include "properties/rows.h"
#include "render/element_controls.h"
#include "render/layout_host.h"
#include "render/redraw.h"
#include "render/sample_families.h"
#include "render/target.h"

namespace ornavo {
namespace {

// Nothing on the canvas shows these.
constexpr std::string_view UndrawnTexts[] = {"ElementName", "dbScript", "Value", "SP_SkinInformation.Value"};
constexpr std::string_view UndrawnTicks[] = {"Resizer", "Dragger"};
// These decide which rows the sheet has.
constexpr std::string_view RebuildingTicks[] = {"UseTopLeftTransparency", "CB_UseTopLeftTransparency"};
constexpr std::string_view RebuildingLists[] = {"ActionType", "ElementType", "InfoType"};

constexpr std::string_view KeyColourSuffix = "_TransparentColor";

void Write(PanelParts& parts, const std::string& key, const Value& value) {
    Attempt([&] { SetRowValue(parts.BoundObject, key, value); });
}

/// For a key colour that is read back from a control: makes the control take the edited colour first.
void TakeKeyColour(std::string_view key) {
    const std::string_view preference = GetClass(key);
    if (key == "TransparentColor") TargetForm->host().ScrollBar.ColourOwner.reset();
    if (preference.ends_with(KeyColourSuffix))
        TakeTransparentColor(TargetForm->host().sample,
                             preference.substr(0, preference.size() - KeyColourSuffix.size()));
}

bool IsColourRow(std::string_view key) {
    return LowerText(key).find("color") != std::string::npos;
}

/// Converts a colour in the form "#RRGGBB" to its number.
void TakeWebColour(RowText& box) {
    constexpr int length = 7;
    const QString text = box.text();
    if (!IsColourRow(box.Tag) || !text.startsWith('#') || text.size() != length) return;
    const QColor colour(text);
    if (colour.isValid()) box.SetText(Value(Rgb(colour.red(), colour.green(), colour.blue())).ToText());
}

/// Shows the colour as the box's background. False if the box was empty; it gets the text "0", whose change
/// has been committed already.
bool ShowColour(RowText& box) {
    if (box.Text().empty()) {
        box.setText(QStringLiteral("0"));
        return false;
    }
    Attempt([&] { box.SetBackColor(Value(box.Text()).ToLong()); });
    return true;
}

dbLayoutElementRef BoundElement(const PanelParts& parts) {
    const auto* element = std::get_if<dbLayoutElementRef>(&parts.BoundObject);
    return element ? *element : nullptr;
}

/// False if an element cannot change to or from this type; the list then shows its present type again.
bool MayChangeType(PanelParts& parts, RowCombo& combo) {
    const dbLayoutElementRef element = BoundElement(parts);
    if (!element) return false;
    if (!IsStandardType(combo.ListIndex()) && !IsStandardType(element->ElementType)) return true;
    const Raised building(parts.IsBuilding);
    combo.SetListIndex(element->ElementType);
    return false;
}

/// Selects an element of the list, even one that is not visible.
void ShowElement(PanelParts& parts, int listIndex) {
    const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Item(listIndex + 1);
    parts.panel.DrawPendingEdits();  // of the element selected so far
    parts.BoundObject = element;
    {
        const Raised open = parts.selection.KeepPropertiesOpen();
        parts.canvas.ResetSelection();
    }
    Control& control = ControlOf(*element);
    parts.selection.Select(control);
    if (element->Visible) parts.canvas.SelectWithAnchors(control);
    parts.panel.ShowProperties();
}

/// Shows the bound element's new name in the list of elements and to screen readers.
void TellName(PanelParts& parts) {
    const dbLayoutElementRef element = BoundElement(parts);
    if (!element) return;
    for (int i = 1; i <= parts.pools.cboPic.Top(); ++i) {
        RowCombo& combo = parts.pools.cboProp(i);
        if (combo.Tag == "ShowElement") combo.setItemText(combo.ListIndex(), LineOf(*element));
    }
    TellElement(ControlOf(*element), *element);
}

}  // namespace

void RowEdits::tbx_Prop_Change(RowText& box) {
    if (parts_.IsBuilding) return;
    const std::string key = box.Tag;
    if (IsColourRow(key) && !ShowColour(box)) return;
    if (!GetClass(key).empty() && GetMethod(key) == "Font") return;
    Write(parts_, key, box.Text());
    TakeKeyColour(key);
    if (key == "ElementName") TellName(parts_);
    if (!Contains(UndrawnTexts, key)) parts_.tmrUpdate.start();
}

void RowEdits::tbx_Prop_KeyPress(RowText& box) {
    TakeWebColour(box);
    tbx_Prop_Change(box);
}

void RowEdits::tbx_Prop_LostFocus(RowText& box) {
    if (parts_.IsBuilding) return;
    TakeWebColour(box);
    const std::string_view preference = GetClass(box.Tag);
    if (preference.empty()) return;
    const dbSkinPrefRef pref = objSkin->dbSkinPrefs->Find(preference);
    if (!pref || pref->PrefType < KindColour || pref->PrefType > KindValue) return;
    if (pref->value.IsEmpty() || pref->value == Value("")) box.setText(QStringLiteral("0"));
}

void RowEdits::chk_Boolean_Click(RowCheck& box) {
    if (parts_.IsBuilding) return;
    const std::string key = box.Tag;
    Write(parts_, key, box.Value());
    if (!Contains(UndrawnTicks, key)) parts_.tmrUpdate.start();
    const std::string_view preference = GetClass(key);
    if (Contains(RebuildingTicks, preference.empty() ? std::string_view(key) : preference))
        parts_.panel.ShowProperties();
}

void RowEdits::cboProp_Click(RowCombo& combo) {
    if (parts_.IsBuilding) return;
    const std::string key = combo.Tag;
    if (key == "ShowElement") {
        Attempt([&] { ShowElement(parts_, combo.ListIndex()); });
        return;
    }
    if (key == "ElementType" && !MayChangeType(parts_, combo)) return;
    Write(parts_, key, combo.ListIndex());
    parts_.tmrUpdate.start();
    if (key == "ElementType") UpdateCurrentLayout(parts_);
    if (Contains(RebuildingLists, key)) parts_.panel.ShowProperties();
}

void RowEdits::btn_Prop_Click(RowButton& button) {
    Choose(parts_, button);
}

void RowEdits::btn_PicEdit_Click(RowButton& button) {
    EditPicture(parts_, button);
}

}  // namespace ornavo
