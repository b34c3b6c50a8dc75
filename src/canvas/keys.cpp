// SPDX-License-Identifier: MIT
#include "canvas/keys.h"

#include <QTimer>
#include <array>

#include "base/find_row.h"
#include "canvas/anchors.h"
#include "canvas/corner_math.h"
#include "canvas/dragging.h"
#include "canvas/element_families.h"
#include "canvas/element_menu.h"
#include "canvas/gesture_math.h"
#include "canvas/removal.h"
#include "canvas/selection_steps.h"
#include "canvas/shape_gestures.h"
#include "canvas/window_menu.h"
#include "document/current_skin.h"
#include "document/shape_edits.h"
#include "render/layout_host.h"

namespace ornavo {
namespace {

constexpr int AnyShift = -1;

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
    Control& corner = *parts.selection.SelControl();
    const Rect from = corner.Bounds();
    const std::optional<Point> to =
        CornerStep({.handle = {from.left, from.top},
                    .down = {0, 0},
                    .pointer = CornerNudge(direction, shift),
                    .canvas = {parts.form.ScaleWidth(), parts.form.ScaleHeight()}});
    if (!to) return;
    corner.Move({to->x, to->y, from.width, from.height});
    Attempt([&] { MovePoint(parts, OrderOfTag(corner.Tag), to->x + CornerReach, to->y + CornerReach); });
    parts.tmrShowProperties.start();
    MarkDirty(parts);
}

void NudgeElement(CanvasParts& parts, const Point& direction, int shift) {
    Control& control = *parts.selection.SelControl();
    control.Move(NudgeStep(control.Bounds(), direction, shift));
    WriteSelectedBounds(parts);
    if (&control == &parts.host.pMain) PanelFollows(parts);
    ScrollBarFollows(parts);
    parts.anchors.PlaceAnchors();
    parts.tmrShowProperties.start();
    MarkDirty(parts);
}

void Nudge(CanvasParts& parts, const Point& direction, int shift) {
    if (parts.selection.IsCorner()) NudgeCorner(parts, direction, shift);
    if (FamilyOf(*parts.selection.SelControl())) NudgeElement(parts, direction, shift);
}

void Delete(CanvasParts& parts, const Point&, int shift) {
    const ElementFamily* family = FamilyOf(*parts.selection.SelControl());
    // For a standard element the key acts like an arrow key that does not move it.
    if (family && family->isStandard) return NudgeElement(parts, {0, 0}, shift);
    RemoveSelected(parts);
}

void PopupMenu(CanvasParts& parts, const Point&, int) {
    if (parts.drag.MouseIsDown()) return;
    const Control* control = parts.selection.SelControl();
    const ElementFamily* family = control ? FamilyOf(*control) : nullptr;
    const QWidget& place =
        control && control->window() == &parts.form ? static_cast<const QWidget&>(*control) : parts.form;
    const QPoint middle = place.mapToGlobal(place.rect().center());
    if (family && !ElementsAreHidden(*control))
        PopupElementMenu(parts, middle, family->isStandard);
    else
        PopupWindowMenu(parts, middle);
}

void Step(CanvasParts& parts, const Point&, int shift) {
    StepSelection(parts, shift & ShiftKey ? -1 : 1);
}

/// What a key does.
struct KeyRow {
    Qt::Key key;
    int shift;
    bool needsSelection;
    Point direction;
    void (*effect)(CanvasParts&, const Point& direction, int shift);
};
constexpr std::array Keys = {
    KeyRow{Qt::Key_F5, AnyShift, false, {0, 0}, ShowPreview},
    KeyRow{Qt::Key_S, CtrlKey, false, {0, 0}, Save},
    KeyRow{Qt::Key_Menu, AnyShift, false, {0, 0}, PopupMenu},
    KeyRow{Qt::Key_F10, ShiftKey, false, {0, 0}, PopupMenu},
    KeyRow{Qt::Key_Tab, AnyShift, false, {0, 0}, Step},
    KeyRow{Qt::Key_Backtab, AnyShift, false, {0, 0}, Step},
    KeyRow{Qt::Key_Up, AnyShift, true, {0, -1}, Nudge},
    KeyRow{Qt::Key_Down, AnyShift, true, {0, 1}, Nudge},
    KeyRow{Qt::Key_Left, AnyShift, true, {-1, 0}, Nudge},
    KeyRow{Qt::Key_Right, AnyShift, true, {1, 0}, Nudge},
    KeyRow{Qt::Key_Delete, AnyShift, true, {0, 0}, Delete},
};

}  // namespace

bool Form_KeyDown(CanvasParts& parts, int qtKey, int shift) {
    const KeyRow* row = FindRow(Keys, &KeyRow::key, qtKey);
    if (!row || (row->shift != AnyShift && row->shift != shift)) return false;
    const Control* control = parts.selection.SelControl();
    if (row->needsSelection && (!control || ElementsAreHidden(*control))) return false;
    row->effect(parts, row->direction, shift);
    return true;
}

}  // namespace ornavo
