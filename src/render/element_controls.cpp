// SPDX-License-Identifier: MIT
#include "render/element_controls.h"

#include <QAccessible>
#include <iterator>

#include "platform/shown.h"
#include "render/standard_elements.h"
#include "render/target.h"

namespace ornavo {
namespace {

constexpr int OwnControl = -1;  // ControlIndex of an element that has a control of its own

constexpr QAccessible::Role Roles[] = {
    QAccessible::Pane,       QAccessible::Button,       QAccessible::Graphic,  QAccessible::Dial,
    QAccessible::StaticText, QAccessible::EditableText, QAccessible::ScrollBar};

}  // namespace

void TellElement(Control& control, const dbLayoutElement& element) {
    const auto type = static_cast<std::size_t>(element.ElementType);  // a negative type is beyond it
    if (type < std::size(Roles)) control.SetAccessible(Roles[type], Shown(element.ElementName));
}

bool Claim(Control& control, const dbLayoutElement& element) {
    control.Tag.clear();
    const Rect bounds = GetElementRect(element, TargetFrame);
    if (bounds.width < 1 || bounds.height < 1) return false;
    control.Move(bounds);
    control.Tag = element.Key;
    TellElement(control, element);
    return true;
}

bool ClaimSingle(Control& control, dbLayoutElement& element) {
    element.ControlIndex = OwnControl;
    control.setVisible(true);
    return Claim(control, element);
}

void Present(Control& control, bool visible) {
    control.ZOrder();
    control.setVisible(visible);
}

void ShowSearchBox(dbLayoutElement& element, LayoutHost& host) {
    if (!ClaimSingle(host.tbx_Search, element)) return;
    SetupSearchElement(host.tbx_Search, element);
    Present(host.tbx_Search, element.Visible);
}

void ShowScrollframe(dbLayoutElement& element, LayoutHost& host) {
    if (!ClaimSingle(host.Scrollframe, element)) return;
    host.Scrollframe.Reset();
    SetupScrollElement(host, element);
    Present(host.Scrollframe, element.Visible);
    Present(host.ScrollBar, element.Visible);
}

}  // namespace ornavo
