// SPDX-License-Identifier: MIT
#include "canvas/frm_ornavo.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QShortcut>

#include "base/failure.h"
#include "canvas/dragging.h"
#include "canvas/element_families.h"
#include "canvas/keys.h"
#include "canvas/view_settings.h"
#include "canvas/window_menu.h"
#include "document/current_skin.h"
#include "editor/open_skin.h"
#include "editor/settings_keys.h"
#include "editor/skin_drop.h"
#include "platform/pictures.h"
#include "platform/prompts.h"
#include "platform/shown.h"
#include "render/compose.h"

namespace ornavo {
namespace {

constexpr int SelectorInterval = 500, ResizerInterval = 200, ShowPropertiesInterval = 500;  // milliseconds
constexpr int LeastTwips = 9000;  // the window's least outer width and height

bool SkinIsOpen() {
    return objSkin && objCurrentLayout && !objSkin->SkinName.empty();
}

}  // namespace

frm_Ornavo::frm_Ornavo(Windows& windows, std::string version)
    : Form(nullptr, "frm_Ornavo", Qt::Window),
      windows_(windows),
      version_(std::move(version)),
      selection_([](Control& corner, bool selected) {
          corner.SetBackColor(selected ? PointBlinkColor : PointColor);
      }),
      parts_{*this,   *this, host_,      anchors_,          points_,
             windows, drag_, selection_, tmrShowProperties, [this] { ShowGrid(); }},
      events_(parts_),
      host_(*this, &events_),
      points_(*this, &events_),
      anchors_(parts_, &events_),
      welcome_(*this, windows) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName("Canvas");
    new SkinDrop(*this, windows);
    AddShortcut(Qt::Key_F5);
    AddShortcut(Qt::CTRL | Qt::Key_S);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &frm_Ornavo::ApplicationStateChanged);
    SetTimers();
    Form_Load();
}

void frm_Ornavo::AddShortcut(QKeyCombination keys) {
    auto* shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::ApplicationShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this,
            [this, keys] { Form_KeyDown(parts_, keys.key(), ShiftOf(keys.keyboardModifiers())); });
}

void frm_Ornavo::SetTimers() {
    tmrSelector.setInterval(SelectorInterval);
    connect(&tmrSelector, &QTimer::timeout, this, &frm_Ornavo::tmrSelector_Timer);
    tmrSelector.start();
    tmrResizer.setInterval(ResizerInterval);
    tmrResizer.setSingleShot(true);
    connect(&tmrResizer, &QTimer::timeout, this, &frm_Ornavo::tmrResizer_Timer);
    tmrShowProperties.setInterval(ShowPropertiesInterval);
    tmrShowProperties.setSingleShot(true);
    connect(&tmrShowProperties, &QTimer::timeout, this, [this] { windows_.properties().ShowProperties(); });
}

void frm_Ornavo::Form_Load() {
    const Raised loading(IsLoading);
    setMinimumSize(LeastTwips / TwipsPerPixel - 2 * screenMetrics.SM_CXFRAME,
                   LeastTwips / TwipsPerPixel - 2 * screenMetrics.SM_CYFRAME - screenMetrics.SM_CYSIZE - 1);
    MoveTwips({settings::OrnavoLeft.ReadOrStandard(), settings::OrnavoTop.ReadOrStandard(),
               settings::OrnavoWidth.ReadOrStandard(), settings::OrnavoHeight.ReadOrStandard()});
    SetWindowState(settings::OrnavoWindowState.ReadOrStandard());
    ReadViewSettings();
    UpdateCaption();
    ShowGrid();
}

void frm_Ornavo::Start(std::string commandLine) {
    commandLine_ = std::move(commandLine);
    Form_Activate();
    ShowWelcome();
    show();
    windows_.ShowSkinProject();
    if (!problem_.empty()) prompts().Message(problem_, LoadingError, Icon::Critical, Buttons::Ok);
}

void frm_Ornavo::Form_Activate() {
    if (IsFirstActivate) return;
    IsFirstActivate = true;
    if (!commandLine_.empty()) {
        try {
            windows_.LoadDebug(commandLine_);
            if (!SkinIsOpen()) notFound_ = commandLine_;
        } catch (const Failure& failure) {
            problem_ = failure.description();
            return;
        }
    }
    objSkin->SetupSkinPrefs();
    IsActivated = true;
}

void frm_Ornavo::Form_Resize() {
    welcome_.Place();
    if (WindowState() == StateMinimised) return;
    tmrResizer.start();
}

void frm_Ornavo::tmrResizer_Timer() {
    tmrResizer.stop();
    ShowGrid();
    if (!SkinIsOpen() || !IsActivated) return;
    // A window that is shown or moved may be resized to the size it has.
    const bool isComposed =
        TargetForm == this && TargetLayout == objCurrentLayout && TargetFrame == OwnFrame();
    if (!isComposed) UpdateCurrentLayout();
    if (Control* selected = selection_.SelControl(); selected && FamilyOf(*selected))
        SelectWithAnchors(*selected);
}

void frm_Ornavo::tmrSelector_Timer() {
    if (!selection_.IsCorner()) return;
    Control& corner = *selection_.SelControl();
    corner.SetBackColor(corner.BackColor() == PointColor ? PointBlinkColor : PointColor);
}

void frm_Ornavo::UpdateCurrentLayout() {
    UpdateCaption();
    // A composition hides all controls, and a hidden control gets no release event.
    if (TargetLayout == objCurrentLayout)
        FinishDrag(parts_);
    else
        HideSelectionTools();
    ComposeLayout(*this, objCurrentLayout, objSkin->SkinWidth, objSkin->SkinHeight);
    anchors_.FollowSelection();
    ShowWelcome();
    if (parts_.composed) parts_.composed();
}

bool frm_Ornavo::BeginPreview() {
    if (!LayoutIsOpen()) return false;
    if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();  // commits what was typed there
    FinishDrag(parts_);
    windows_.properties().DrawPendingEdits();
    if (tmrResizer.isActive()) tmrResizer_Timer();
    tmrShowProperties.stop();
    return true;
}

void frm_Ornavo::EndPreview() {
    ReleasePreview(*this, objCurrentLayout, objSkin->SkinWidth, objSkin->SkinHeight);
    UpdateCurrentLayout();
}

/// Loads pictures again that were edited in another program.
void frm_Ornavo::ApplicationStateChanged(Qt::ApplicationState state) {
    const bool shows = SkinIsOpen() && isVisible() && !drag_.MouseIsDown();
    if (state == Qt::ApplicationActive && shows && PicturesChanged()) UpdateCurrentLayout();
}

void frm_Ornavo::HideSelectionTools() {
    anchors_.HideSelectionTools();
    tmrShowProperties.stop();
}

void frm_Ornavo::UpdateCaption() {
    QString caption = Shown("Ornavo " + version_ + " (BETA)");
    if (SkinIsOpen())
        caption = QStringLiteral("Ornavo -> %1 -> %2%3 -> Current Size: %4x%5")
                      .arg(Shown(objSkin->SkinName), Shown(objCurrentLayout->LayoutName),
                           QString(objSkin->Dirty ? "*" : ""), QString::number(ScaleWidth()),
                           QString::number(ScaleHeight()));
    setWindowTitle(caption);
}

void frm_Ornavo::ResetFormToOriginal() {
    if (WindowState() == StateMaximised) SetWindowState(StateNormal);
    const Rect now = TwipBounds();
    MoveInside({now.left, now.top}, {objSkin->SkinWidth, objSkin->SkinHeight});
    windows_.ArrangeTools();
}

void frm_Ornavo::ShowWelcome() {
    // A skin without a file has no size.
    if (LayoutIsOpen())
        welcome_.Leave();
    else
        welcome_.Show(SkinIsOpen() ? objSkin->SkinName : notFound_, SkinIsOpen() && objSkin->SkinWidth > 0);
}

Frame frm_Ornavo::OwnFrame() const {
    return {ScaleWidth(), ScaleHeight(), objSkin->SkinWidth, objSkin->SkinHeight};
}

void frm_Ornavo::ShowGrid() {
    if (surface_.ShowGrid(OwnFrame(), devicePixelRatioF())) update();
}

void frm_Ornavo::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    surface_.Paint(painter, event->rect());
}

void frm_Ornavo::keyPressEvent(QKeyEvent* event) {
    if (!Form_KeyDown(parts_, event->key(), ShiftOf(event->modifiers()))) Form::keyPressEvent(event);
}

void frm_Ornavo::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (!events_.Form_MouseDown(at.x(), at.y()) && event->button() == Qt::RightButton)
        PopupWindowMenu(parts_, event->globalPosition().toPoint());
}

void frm_Ornavo::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    events_.Form_MouseMove(at.x(), at.y());
}

void frm_Ornavo::mouseDoubleClickEvent(QMouseEvent*) {}  // the first press was handled already

void frm_Ornavo::Form_Unload() {
    hasGone_ = true;
    tmrSelector.stop();
    windows_.UnloadOthers();
    SaveSettings();
}

void frm_Ornavo::SaveSettings() const {
    const int state = WindowState();
    settings::OrnavoWindowState.Write(state == StateMaximised ? state : StateNormal);
    const Rect bounds = TwipBounds();
    settings::OrnavoLeft.Write(bounds.left);
    settings::OrnavoTop.Write(bounds.top);
    settings::OrnavoWidth.Write(bounds.width);
    settings::OrnavoHeight.Write(bounds.height);
    WriteViewSettings();
}

}  // namespace ornavo
