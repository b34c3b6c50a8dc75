// SPDX-License-Identifier: MIT
#include "canvas/anchors.h"

#include <QPainter>

#include "canvas/element_families.h"
#include "canvas/gesture_math.h"
#include "canvas/shape_points.h"
#include "document/current_skin.h"
#include "document/shape_edits.h"
#include "editor/selection.h"
#include "render/redraw.h"

namespace ornavo {
namespace {

constexpr QRgb FrameColour = qRgb(40, 36, 32);

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

/// Framed in dark, so that it is seen on any ground.
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

void PutCornerColour(Control* control) {
    if (control && control->Name == "cPointMover") control->SetBackColor(PointColor);
}

/// A control for the selected element, which is kept until elements are shown again.
Control* Unseen() {
    const dbLayoutElementRef element = objCurrentLayout->dbLayoutElements->Find(SelKey);
    return element && ElementsAreHidden(*SelControl) ? &ControlOf(*element) : nullptr;
}

}  // namespace

Anchors::Anchors(QWidget& window, ControlEvents* listener, DragState& drag, Windows& windows)
    : Mover(*new Control(&window, "Mover")), drag_(drag), windows_(windows) {
    for (std::size_t i = 0; i < Anchor.size(); ++i) {
        PictureBox* handle = new Handle(&window, "Anchor", static_cast<int>(i));
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

Anchors::~Anchors() {
    SelControl = nullptr;
    SelKey.clear();
}

Control* Anchors::PlaceAnchors(Control* control, bool keepSelection) {
    if (!control || control->isHidden()) {
        HideAnchors();
        return control;
    }
    if (!keepSelection) {
        SelKey = control->Tag;
        SelControl = control;
    }
    Surround(control->Bounds());
    RaiseHandles();
    if (keepSelection) return control;
    ShowHandles(true);
    Mover.ZOrder();
    return control;
}

void Anchors::HideAnchors() {
    ShowHandles(false);
    if (!KeepPropertiesOpen && windows_.properties().IsShown()) windows_.properties().Hide();
    KeepPropertiesOpen = false;
}

void Anchors::ResetSelection() {
    if (!SelControl) return;
    HideAnchors();
    PutCornerColour(SelControl);
    SelControl = nullptr;
    SelKey.clear();
}

void Anchors::HideSelectionTools() {
    ShowHandles(false);
    if (windows_.properties().IsShown()) windows_.properties().Hide();
    PutCornerColour(SelControl);
    SelControl = nullptr;
    SelKey.clear();
    // A hidden control hears of no release.
    drag_.End();
}

void Anchors::FollowSelection(LayoutHost& host, ShapePoints& points) {
    if (!SelControl || SelKey.empty()) return;
    const bool isCorner = SelControl->Name == "cPointMover";
    Control* found = isCorner ? points.FindCorner(OrderOfTag(SelKey)) : ElementControl(host, SelKey);
    if (!found) found = Unseen();
    if (!found) return ResetSelection();
    if (found != SelControl) PutCornerColour(SelControl);
    SelControl = found;
    RaiseHandles();
}

void Anchors::Surround(const Rect& bounds) {
    const Raised placing = drag_.Placing();
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
