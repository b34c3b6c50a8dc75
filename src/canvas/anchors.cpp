// SPDX-License-Identifier: MIT
#include "canvas/anchors.h"

#include <QPainter>

#include "canvas/element_families.h"
#include "canvas/gesture_math.h"
#include "canvas/shape_points.h"
#include "document/current_skin.h"
#include "document/shape_edits.h"
#include "render/redraw.h"

namespace ornavo {
namespace {

constexpr QRgb FrameColour = qRgb(40, 36, 32);

/// Pointer and tool tip of a handle.
struct HandleLook {
    MousePointer pointer;
    const char* tip;
};
constexpr std::array<HandleLook, 8> Looks = {{
    {PointerDiagonalDown, "Drag to move the top left corner"},
    {PointerUpDown, "Drag to move the top edge"},
    {PointerDiagonalUp, "Drag to move the top right corner"},
    {PointerLeftRight, "Drag to move the right edge"},
    {PointerDiagonalDown, "Drag to move the bottom right corner"},
    {PointerUpDown, "Drag to move the bottom edge"},
    {PointerDiagonalUp, "Drag to move the bottom left corner"},
    {PointerLeftRight, "Drag to move the left edge"},
}};

/// A handle with a dark frame, so that it is visible on any background.
class Handle : public PictureBox {
public:
    using PictureBox::PictureBox;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), FrameColour);
        painter.fillRect(rect().adjusted(1, 1, -1, -1), ScreenColour(BackColor()));
    }
};

}  // namespace

Anchors::Anchors(CanvasParts& parts, ControlEvents* listener) : Mover(&parts.form, "Mover"), parts_(parts) {
    for (std::size_t i = 0; i < Anchor.size(); ++i) {
        PictureBox* handle = new Handle(&parts.form, "Anchor", static_cast<int>(i));
        handle->SetBackColor(PointColor);
        handle->SetMousePointer(Looks[i].pointer);
        handle->setToolTip(Looks[i].tip);
        handle->setAccessibleName(Looks[i].tip);
        handle->Listen(listener);
        Anchor[i] = handle;
    }
    Mover.setAttribute(Qt::WA_TransparentForMouseEvents);
    ShowHandles(false);
}

void Anchors::PlaceAnchors() {
    const Control* control = parts_.selection.SelControl();
    if (!control || control->isHidden()) return HideAnchors();
    Surround(control->Bounds());
    RaiseHandles();
}

void Anchors::SelectWithAnchors(Control& control) {
    if (control.isHidden()) return HideAnchors();
    parts_.selection.Select(control);
    PlaceAnchors();
    ShowHandles(true);
    Mover.ZOrder();
}

void Anchors::HideAnchors() {
    ShowHandles(false);
    if (!parts_.selection.KeepsPropertiesOpen()) HideProperties();
}

void Anchors::HideProperties() {
    PropertiesPanel& panel = parts_.windows.properties();
    if (panel.IsShown()) panel.Hide();
}

void Anchors::ResetSelection() {
    if (!parts_.selection.SelControl()) return;
    HideAnchors();
    parts_.selection.Clear();
}

void Anchors::HideSelectionTools() {
    ShowHandles(false);
    HideProperties();
    parts_.selection.Clear();
    // A hidden control gets no release event.
    parts_.drag.End();
}

void Anchors::FollowSelection() {
    Selection& selection = parts_.selection;
    const std::string& key = selection.SelKey();
    if (!selection.SelControl() || key.empty()) return;
    Control* found =
        selection.IsCorner() ? parts_.points.FindCorner(OrderOfTag(key)) : ElementControl(parts_.host, key);
    if (!found) found = Unseen();
    if (!found) return ResetSelection();
    selection.Follow(*found);
    RaiseHandles();
}

/// A hidden control for the selected element while no elements are shown.
Control* Anchors::Unseen() {
    const dbLayoutElementRef element = SelectedElement(parts_);
    return element && ElementsAreHidden(*parts_.selection.SelControl()) ? &ControlOf(*element) : nullptr;
}

void Anchors::Surround(const Rect& bounds) {
    const Raised placing = parts_.drag.Placing();
    const std::array<Point, 8> places = HandlePlaces(bounds);
    for (std::size_t i = 0; i < Anchor.size(); ++i)
        Anchor[i]->Move({places[i].x, places[i].y, HandleSize, HandleSize});
    Mover.Move(bounds);
}

void Anchors::ShowHandles(bool visible) {
    for (PictureBox* handle : Anchor) handle->setVisible(visible);
    Mover.setVisible(visible);
}

void Anchors::RaiseHandles() {
    for (PictureBox* handle : Anchor) handle->ZOrder();
}

}  // namespace ornavo
