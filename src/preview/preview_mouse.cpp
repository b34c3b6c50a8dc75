// SPDX-License-Identifier: MIT
#include "preview/preview_mouse.h"

#include <algorithm>

#include "base/failure.h"
#include "document/codes.h"

namespace ornavo {
namespace {

constexpr int VolumePerPixel = 2;

}  // namespace

int ResizedSide(int length, int from, int to) {
    return std::max(LeastPreview, length - (from - to));
}

/// Null for a control of another kind and for a control without an element.
const dbLayoutElement* PreviewMouse::ElementOf(const Control& control, ElementKind kind) const {
    const ElementFamily* family = FamilyOf(control);
    if (!Layout || control.Tag.empty() || !family || family->kind != kind) return nullptr;
    return Layout->dbLayoutElements->Find(control.Tag).get();
}

void PreviewMouse::MouseDown(Control& control, const Mouse& mouse) {
    if (const dbLayoutElement* element = ElementOf(control, ElementKind::Button))
        Element_MouseDown(*element, mouse);
    else
        MouseMove(control, mouse);  // so that a click seeks at once
}

void PreviewMouse::MouseMove(Control& control, const Mouse& mouse) {
    Attempt([&] {
        if (const dbLayoutElement* element = ElementOf(control, ElementKind::Button))
            Element_MouseMove(*element, mouse);
        else if (const dbLayoutElement* info = ElementOf(control, ElementKind::Info))
            pInfo_MouseMove(*info, control.Bounds(), mouse);
    });
}

void PreviewMouse::MouseUp(Control& control, const Mouse&) {
    // Ignore the release that ends a drag of the window.
    if (dragging_) {
        dragging_ = false;
        return;
    }
    if (const dbLayoutElement* element = ElementOf(control, ElementKind::Button))
        Attempt([&] { Element_MouseUp(*element); });
}

void PreviewMouse::DblClick(Control& control, const Mouse&) {
    const dbLayoutElement* element = ElementOf(control, ElementKind::Button);
    if (element && element->Dragger) window_.ToggleMaximise();
}

void PreviewMouse::Repeat(Control& control) {
    const dbLayoutElement* element = ElementOf(control, ElementKind::Button);
    if (element && (element->ActionType == ActionVolumeUp || element->ActionType == ActionVolumeDown))
        Attempt([&] { Element_MouseUp(*element); });
}

void PreviewMouse::Element_MouseDown(const dbLayoutElement& element, const Mouse& mouse) {
    if (mouse.button != LeftButton) return;
    if (element.Dragger) {
        dragging_ = !window_.IsMaximised();
        grip_ = QPoint(mouse.screenX, mouse.screenY) - window_.Corner();
    } else if (element.Resizer) {
        if (window_.IsMaximised()) return;
        Resizing = true;
        StartX = mouse.x;
        StartY = mouse.y;
        StartWidth = window_.Inside().width();
        StartHeight = window_.Inside().height();
    } else if (element.ElementType == TypeVolume) {
        VolumeY = mouse.y;
    }
}

void PreviewMouse::Element_MouseMove(const dbLayoutElement& element, const Mouse& mouse) {
    if (!(mouse.button & LeftButton)) return;
    if (dragging_) {
        window_.MoveCorner(QPoint(mouse.screenX, mouse.screenY) - grip_);
    } else if (element.Resizer) {
        if (Resizing)
            window_.ShowOutline(
                {ResizedSide(StartWidth, StartX, mouse.x), ResizedSide(StartHeight, StartY, mouse.y)});
    } else if (element.ElementType == TypeVolume) {
        const int up = VolumeY - mouse.y;
        VolumeY = mouse.y;
        ChangeVolume(double{VolumePerPixel} * up);
    }
}

void PreviewMouse::Element_MouseUp(const dbLayoutElement& element) {
    if (element.ElementType == TypeVolume) return;
    switch (element.ActionType) {
        case ActionVolumeUp:
        case ActionVolumeDown:
            infos_.Volume = VolumeBy(infos_.Volume,
                                     element.ActionType == ActionVolumeUp ? element.Value : -element.Value);
            return infos_.ShowLine();
        case ActionClose:
            return window_.Unload();
        case ActionMaximise:
            return window_.ToggleMaximise();
        case ActionMinimise:
            return window_.Minimise();
        default:
            break;
    }
    if (!Resizing) return;
    Resizing = false;
    window_.EndOutline();
}

void PreviewMouse::ChangeVolume(double by) {
    const int before = infos_.Volume;
    infos_.Volume = VolumeBy(before, by);
    if (infos_.Volume != before) infos_.ShowLine();
}

void PreviewMouse::pInfo_MouseMove(const dbLayoutElement& element, const Rect& box, const Mouse& mouse) {
    if (mouse.button == 0 || element.ElementType != TypeInfo) return;
    if (element.Seeker) {
        infos_.SeekPos = SeekAt({element.SeekLeftOffset, element.SeekTopOffset, element.SeekRightOffset,
                                 element.SeekBottomOffset},
                                box.width, mouse.x);
    } else if (element.InfoType == InfoVolume) {
        infos_.Volume = element.Value == 0 ? VolumeAcross(box.width, mouse.x) : VolumeUp(box.height, mouse.y);
        infos_.ShowLine();
    }
}

}  // namespace ornavo
