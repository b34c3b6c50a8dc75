// SPDX-License-Identifier: MIT
#include "canvas/keys.h"

#include <QTimer>
#include <algorithm>
#include <array>

#include "canvas/anchors.h"
#include "canvas/corner_math.h"
#include "canvas/dragging.h"
#include "canvas/element_families.h"
#include "canvas/element_menu.h"
#include "canvas/gesture_math.h"
#include "canvas/selection_steps.h"
#include "canvas/shape_gestures.h"
#include "canvas/shape_points.h"
#include "canvas/window_menu.h"
#include "document/current_skin.h"
#include "document/layout_edits.h"
#include "document/shape_edits.h"
#include "editor/selection.h"
#include "render/layout_host.h"

namespace ornavo {
namespace {

constexpr int ShiftKey = 1, CtrlOnly = 2, AnyShift = -1;

void ShowPreview(CanvasParts& parts, const Point&, int) {
    if (!LayoutIsOpen()) return;
    FinishDrag(parts);
    parts.windows.ShowPreview();
}

void Save(CanvasParts& parts, const Point&, int) {
    FinishDrag(parts);
    parts.windows.SaveSkin();
}

void NudgeCorner(CanvasParts& parts, const Point& direction, int shift) {
    const Rect from = SelControl->Bounds();
    const std::optional<Point> to =
        CornerStep({.handle = {from.left, from.top},
                    .down = {0, 0},
                    .pointer = CornerNudge(direction, shift),
                    .canvas = {parts.form.ScaleWidth(), parts.form.ScaleHeight()}});
    if (!to) return;
    SelControl->Move({to->x, to->y, from.width, from.height});
    Attempt([&] { MovePoint(parts, OrderOfTag(SelControl->Tag), to->x + CornerReach, to->y + CornerReach); });
    parts.tmrShowProperties.start();
    MarkDirty(parts);
}

void NudgeElement(CanvasParts& parts, const Point& direction, int shift) {
    SelControl->Move(NudgeStep(SelControl->Bounds(), direction, shift));
    WriteSelectedBounds(parts);
    if (SelControl->Name == "pMain") PanelFollows(parts);
    ScrollBarFollows(parts);
    parts.anchors.PlaceAnchors(SelControl, true);
    parts.tmrShowProperties.start();
    MarkDirty(parts);
}

void Nudge(CanvasParts& parts, const Point& direction, int shift) {
    if (SelControl->Name == "cPointMover") NudgeCorner(parts, direction, shift);
    if (FamilyOf(*SelControl)) NudgeElement(parts, direction, shift);
}

void DeleteCorner(CanvasParts& parts) {
    Control& corner = *SelControl;
    Attempt([&] { DeleteShapePoint(*objCurrentLayout, corner.Tag); });
    corner.SetBackColor(PointColor);
    SelControl = nullptr;
    objSkin->Dirty = true;
    parts.canvas.UpdateCurrentLayout();
    parts.windows.properties().ShowProperties();
}

void DeleteShown(CanvasParts& parts) {
    Control& control = *SelControl;
    Attempt([&] { DeleteElement(*objCurrentLayout, control.Tag); });
    parts.anchors.HideAnchors();
    control.setVisible(false);
    control.Tag.clear();
    if (control.Name == "pInfo")
        parts.host.pInfo.Released(control.Index);
    else
        parts.host.Element.Released(control.Index);
    SelControl = nullptr;
    objSkin->Dirty = true;
}

void Delete(CanvasParts& parts, const Point&, int shift) {
    const ElementFamily* family = FamilyOf(*SelControl);
    const bool isCorner = SelControl->Name == "cPointMover";
    if (!isCorner && !family) return;
    // The standard elements take the key as an arrow that leads nowhere.
    if (family && family->isStandard) return NudgeElement(parts, {0, 0}, shift);
    if (isCorner)
        DeleteCorner(parts);
    else
        DeleteShown(parts);
    parts.tmrShowProperties.start();
    parts.canvas.UpdateCaption();
}

void PopupMenu(CanvasParts& parts, const Point&, int) {
    const ElementFamily* family = SelControl ? FamilyOf(*SelControl) : nullptr;
    const QWidget& place =
        SelControl && SelControl->window() == &parts.form ? static_cast<QWidget&>(*SelControl) : parts.form;
    const QPoint middle = place.mapToGlobal(place.rect().center());
    if (family && !ElementsAreHidden(*SelControl))
        PopupElementMenu(parts, middle, family->isStandard);
    else
        PopupWindowMenu(parts, middle);
}

void Step(CanvasParts& parts, const Point&, int shift) {
    StepSelection(parts, shift & ShiftKey ? -1 : 1);
}

struct KeyRow {
    int code;
    int shift;
    bool needsSelection;
    Point direction;
    void (*effect)(CanvasParts&, const Point& direction, int shift);
    Qt::Key key;
};
constexpr std::array Keys = {
    KeyRow{KeyF5, AnyShift, false, {0, 0}, ShowPreview, Qt::Key_F5},
    KeyRow{KeyS, CtrlOnly, false, {0, 0}, Save, Qt::Key_S},
    KeyRow{KeyMenu, AnyShift, false, {0, 0}, PopupMenu, Qt::Key_Menu},
    KeyRow{KeyF10, ShiftKey, false, {0, 0}, PopupMenu, Qt::Key_F10},
    KeyRow{KeyTab, AnyShift, false, {0, 0}, Step, Qt::Key_Tab},
    KeyRow{KeyTab, AnyShift, false, {0, 0}, Step, Qt::Key_Backtab},
    KeyRow{KeyUp, AnyShift, true, {0, -1}, Nudge, Qt::Key_Up},
    KeyRow{KeyDown, AnyShift, true, {0, 1}, Nudge, Qt::Key_Down},
    KeyRow{KeyLeft, AnyShift, true, {-1, 0}, Nudge, Qt::Key_Left},
    KeyRow{KeyRight, AnyShift, true, {1, 0}, Nudge, Qt::Key_Right},
    KeyRow{KeyDelete, AnyShift, true, {0, 0}, Delete, Qt::Key_Delete},
};

}  // namespace

bool Form_KeyDown(CanvasParts& parts, int keyCode, int shift) {
    const auto row =
        std::find_if(Keys.begin(), Keys.end(), [&](const KeyRow& one) { return one.code == keyCode; });
    if (row == Keys.end() || (row->shift != AnyShift && row->shift != shift)) return false;
    if (row->needsSelection && (!SelControl || ElementsAreHidden(*SelControl))) return false;
    row->effect(parts, row->direction, shift);
    return true;
}

int KeyCodeOf(int qtKey) {
    const auto row =
        std::find_if(Keys.begin(), Keys.end(), [&](const KeyRow& one) { return one.key == qtKey; });
    return row == Keys.end() ? 0 : row->code;
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace ornavo
