// SPDX-License-Identifier: MIT
#include "preview/frm_preview.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "base/failure.h"
#include "document/current_skin.h"
#include "editor/settings_keys.h"
#include "preview/window_shape.h"
#include "render/compose.h"
#include "render/shape.h"

namespace ornavo {
namespace {

constexpr int TipInterval = 4000;  // milliseconds
constexpr int TipGap = 8;          // pixels between the window and its tip

void Run(QTimer& timer, int interval) {
    timer.setInterval(interval);
    timer.start();
}

}  // namespace

frm_Preview::frm_Preview(Windows& windows)
    : Form(nullptr, "frm_Preview", Qt::Window | Qt::FramelessWindowHint),
      windows_(windows),
      mouse_(*this, infos_),
      host_(*this, &mouse_),
      resizer_([this] { EndOutline(); }),
      tip_(new QLabel("Press Esc to close the preview", this, Qt::ToolTip)) {
    setWindowTitle("Skin Preview");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    tip_->setObjectName("EscapeTip");
    tip_->setMargin(TipGap);
    tip_->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&tmrScroller, &QTimer::timeout, this, [this] { infos_.tmrScroller_Timer(); });
    connect(&tmrSeekerDemo, &QTimer::timeout, this, [this] { infos_.tmrSeekerDemo_Timer(); });
    connect(&tmrTip, &QTimer::timeout, tip_, &QWidget::hide);
    tmrTip.setSingleShot(true);
}

frm_Preview::~frm_Preview() = default;

void frm_Preview::Open(const Point& standardCorner) {
    Form_Load(standardCorner);
    show();
    raise();
    activateWindow();
    ShowTip();
}

void frm_Preview::Form_Load(const Point& standardCorner) {
    const Point corner = {settings::PreviewLeft(standardCorner.x).ReadOrStandard(),
                          settings::PreviewTop(standardCorner.y).ReadOrStandard()};
    MoveInside(corner, {objSkin->SkinWidth, objSkin->SkinHeight});
    mouse_.Layout = objCurrentLayout;
    ComposePreview(*this, mouse_.Layout, objSkin->SkinWidth, objSkin->SkinHeight);
    infos_.Begin(host_, *mouse_.Layout);
    composed_ = size();
    Run(tmrScroller, ScrollInterval);
    Run(tmrSeekerDemo, SeekerInterval);
}

/// Shows the tip below the window, or over its lower edge if the screen ends there.
void frm_Preview::ShowTip() {
    tip_->adjustSize();
    const QRect room = screen()->availableGeometry(), window = geometry();
    const int left = window.center().x() - tip_->width() / 2;
    const int top = std::min(window.bottom() + TipGap, room.bottom() - tip_->height() - TipGap);
    tip_->move(std::clamp(left, room.left(), std::max(room.left(), room.right() - tip_->width())),
               std::max(top, room.top()));
    tip_->show();
    Run(tmrTip, TipInterval);
}

void frm_Preview::Rebuild() {
    composed_ = size();
    RenderElements(View::Preview);
    if (!Attempt([] { ShapeForm(); })) SetShape({});  // or else the veil of the resize would stay
    infos_.Begin(host_, *mouse_.Layout);
}

void frm_Preview::Form_Resize() {
    // The desktop reports the size of a maximised window some time after the request.
    if (mouse_.Layout && isVisible() && WindowState() != StateMinimised && size() != composed_) Rebuild();
}

void frm_Preview::SetShape(const QRegion& region) {
    CutWindow(*this, region);
}

void frm_Preview::MoveCorner(const QPoint& corner) {
    tip_->hide();
    move(corner);
}

void frm_Preview::ShowOutline(const QSize& size) {
    tip_->hide();
    resizer_.Stand({pos(), size}, *mouse_.Layout, TargetFrame);
    VeilWindow(*this);
}

void frm_Preview::EndOutline() {
    mouse_.Resizing = false;
    composed_ = QSize();
    if (resizer_.isVisible()) resize(resizer_.size());
    if (composed_ != size()) Rebuild();
    resizer_.hide();
    raise();
}

void frm_Preview::ToggleMaximise() {
    const int state = WindowState();
    if (state == StateMinimised) return;
    tip_->hide();
    SetWindowState(state == StateNormal ? StateMaximised : StateNormal);
}

void frm_Preview::Form_Unload() {
    tmrScroller.stop();
    tmrSeekerDemo.stop();
    resizer_.hide();
    tip_->hide();
    if (!IsMaximised()) {
        const Rect place = TwipBounds();
        settings::PreviewLeft(0).Write(place.left);
        settings::PreviewTop(0).Write(place.top);
    }
    windows_.LeavePreview();
}

void frm_Preview::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    ground_.Paint(painter, event->rect());
}

void frm_Preview::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F5)
        close();
    else
        Form::keyPressEvent(event);
}

}  // namespace ornavo
