// SPDX-License-Identifier: MIT
#include "canvas/frm_ornavo.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "base/failure.h"
#include "canvas/view_settings.h"
#include "canvas/welcome.h"
#include "document/current_skin.h"
#include "editor/settings_keys.h"
#include "platform/prompts.h"
#include "render/compose.h"

namespace ornavo {
namespace {

constexpr int ResizerInterval = 200;  // milliseconds
constexpr int LeastTwips = 9000;      // the window's least width and height, outside
constexpr int MostPixels = 8000;      // a larger skin does not make the window larger
constexpr const char* LoadingError = "Loading Skin Error";

bool SkinIsOpen() {
    return objSkin && objCurrentLayout && !objSkin->SkinName.empty();
}

bool LayoutIsShown() {
    return objCurrentLayout && !objCurrentLayout->Key.empty();
}

/// The folder or file that a drag brings; "" if it brings something else.
QString DroppedPath(const QMimeData* data) {
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

}  // namespace

frm_Ornavo::frm_Ornavo(Windows& windows, std::string version)
    : Form(nullptr, "frm_Ornavo", Qt::Window),
      windows_(windows),
      version_(std::move(version)),
      host_(*this, nullptr) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
    tmrResizer.setInterval(ResizerInterval);
    tmrResizer.setSingleShot(true);
    connect(&tmrResizer, &QTimer::timeout, this, &frm_Ornavo::tmrResizer_Timer);
    Form_Load();
}

void frm_Ornavo::Form_Load() {
    GetScreenMetrics();
    const Raised loading(IsLoading);
    const ScreenMetrics& metrics = screenMetrics();
    setMinimumSize(LeastTwips / TwipsPerPixel - 2 * metrics.SM_CXFRAME,
                   LeastTwips / TwipsPerPixel - 2 * metrics.SM_CYFRAME - metrics.SM_CYSIZE - 1);
    MoveTwips({settings::OrnavoLeft.standard, settings::OrnavoTop.standard, settings::OrnavoWidth.standard,
               settings::OrnavoHeight.standard});
    Attempt([&] {
        MoveTwips({settings::OrnavoLeft.Read(), settings::OrnavoTop.Read(), settings::OrnavoWidth.Read(),
                   settings::OrnavoHeight.Read()});
    });
    Attempt([&] { SetWindowState(settings::OrnavoWindowState.Read()); });
    ReadViewSettings();
    UpdateCaption();
    ShowGrid();
}

void frm_Ornavo::Start(std::string commandLine) {
    commandLine_ = std::move(commandLine);
    Form_Activate();
    show();
    if (!problem_.empty()) prompts().Message(problem_, LoadingError, Icon::Critical, Buttons::Ok);
}

void frm_Ornavo::Form_Activate() {
    if (IsFirstActivate) return;
    IsFirstActivate = true;
    if (!commandLine_.empty()) {
        try {
            windows_.LoadDebug(commandLine_);
        } catch (const Failure& failure) {
            problem_ = failure.description();
            return;
        }
    }
    objSkin->SetupSkinPrefs();
    IsActivated = true;
}

void frm_Ornavo::Form_Resize() {
    if (WindowState() == StateMinimised) return;
    tmrResizer.start();
}

void frm_Ornavo::tmrResizer_Timer() {
    tmrResizer.stop();
    ShowGrid();
    if (SkinIsOpen() && IsActivated) UpdateCurrentLayout();
}

void frm_Ornavo::UpdateCurrentLayout() {
    UpdateCaption();
    ComposeLayout(*this, objCurrentLayout, objSkin->SkinWidth, objSkin->SkinHeight);
}

void frm_Ornavo::UpdateCaption() {
    QString caption = QString::fromStdString("Ornavo " + version_ + " (BETA)");
    if (SkinIsOpen())
        caption = QStringLiteral("Ornavo -> %1 -> %2%3 -> Current Size: %4x%5")
                      .arg(QString::fromStdString(objSkin->SkinName),
                           QString::fromStdString(objCurrentLayout->LayoutName),
                           QLatin1String(objSkin->Dirty ? "*" : ""))
                      .arg(ScaleWidth())
                      .arg(ScaleHeight());
    setWindowTitle(caption);
}

void frm_Ornavo::ResetFormToOriginal() {
    if (WindowState() == StateMaximised) SetWindowState(StateNormal);
    const Rect now = TwipBounds();
    const ScreenMetrics& metrics = screenMetrics();
    const int width = std::clamp(objSkin->SkinWidth, 0, MostPixels) + 2 * metrics.SM_CXFRAME;
    const int height =
        std::clamp(objSkin->SkinHeight, 0, MostPixels) + 2 * metrics.SM_CYFRAME + metrics.SM_CYSIZE + 1;
    MoveTwips({now.left, now.top, width * TwipsPerPixel, height * TwipsPerPixel});
}

void frm_Ornavo::ShowGrid() {
    surface_.ShowGrid({ScaleWidth(), ScaleHeight(), objSkin->SkinWidth, objSkin->SkinHeight},
                      devicePixelRatioF());
    update();
}

void frm_Ornavo::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    surface_.Paint(painter, event->rect());
    if (!LayoutIsShown()) PaintWelcome(painter, rect(), SkinIsOpen() ? objSkin->SkinName : "");
}

void frm_Ornavo::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedPath(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void frm_Ornavo::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    OpenOrTell(DroppedPath(event->mimeData()).toStdString());
}

void frm_Ornavo::OpenOrTell(const std::string& skinName) {
    try {
        windows_.LoadDebug(skinName);
        objSkin->SetupSkinPrefs();
    } catch (const Failure& failure) {
        prompts().Message(failure.description(), LoadingError, Icon::Critical, Buttons::Ok);
    }
}

void frm_Ornavo::Form_Unload() {
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
