// SPDX-License-Identifier: MIT
// One step of a drag on a layout of 60 elements, from the event to the painted picture, compared with a bare
// repaint of the area that such a step changes.
#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QTemporaryDir>

#include "canvas/frm_ornavo.h"
#include "canvas/gesture_math.h"
#include "document/codes.h"
#include "document/current_skin.h"
#include "judge.h"
#include "platform/settings.h"
#include "platform/startup.h"
#include "render/target.h"
#include "support/recorded_windows.h"

namespace ornavo::bench {
namespace {

constexpr int Width = 1024, Height = 768, TileWidth = 100, TileHeight = 80, Elements = 60;
constexpr int Step = 6;             // pixels in both directions
constexpr QPoint Press = {20, 20};  // in the dragged control
constexpr Rect Start = {400, 300, TileWidth, TileHeight};

/// A canvas with 60 overlapping buttons and pictures, the last in the middle and on top.
class Stage {
public:
    Stage() {
        UseSettingsFile(folder_.filePath("settings.ini"));
        objSkin->SetBasePath(folder_.path().toStdString());
        objSkin->SkinName = "Bench";
        objSkin->SkinWidth = Width;
        objSkin->SkinHeight = Height;
        QDir(folder_.path()).mkdir("Bench");
        QImage picture(32, 32, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        picture.save(folder_.filePath("Bench/tile.bmp"));
        objCurrentLayout = std::make_shared<dbLayout>();
        objCurrentLayout->Key = objCurrentLayout->LayoutName = "Bench";
        for (int i = 1; i <= Elements; ++i) AddTile(i);
        form_ = std::make_unique<frm_Ornavo>(windows_, "bench");
        form_->Start("");
        form_->ResetFormToOriginal();
        form_->UpdateCurrentLayout();
        form_->tmrResizer.stop();  // otherwise it would compose during the drag
        QCoreApplication::processEvents();
    }
    ~Stage() { TargetLayout.reset(); }
    frm_Ornavo& form() { return *form_; }
    Control& Dragged() { return form_->host().Element[Elements]; }

private:
    static void AddTile(int i) {
        dbLayoutElement& e = *objCurrentLayout->dbLayoutElements->Add(i, std::to_string(i), TypeButton, 0);
        const bool isLast = i == Elements;
        e.LeftX = isLast ? Start.left : i * 37 % (Width - TileWidth);
        e.TopY = isLast ? Start.top : i * 53 % (Height - TileHeight);
        e.WidthX = TileWidth;
        e.HeightY = TileHeight;
        e.LockLeft = e.LockTop = true;
        e.PicNormal = "tile.bmp";
        if (i % 2 == 0) e.Caption = "Play";
    }
    QTemporaryDir folder_;
    testing::RecordedWindows windows_;
    std::unique_ptr<frm_Ornavo> form_;
};

void Send(Control& control, QEvent::Type type, QPoint at) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(at), QPointF(control.mapToGlobal(at)), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &event);
}

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    using namespace ornavo::bench;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ornavo::PrepareProcess();
    QApplication application(count, words);
    ornavo::InitCommonControls(application);
    Stage stage;
    Send(stage.Dragged(), QEvent::MouseButtonPress, Press);
    int way = -Step;  // forth and back
    const Round drag = [&] {
        way = -way;
        return Cpu([&] {
            Send(stage.Dragged(), QEvent::MouseMove, Press + QPoint(way, way));
            QCoreApplication::processEvents();
        });
    };
    const Round repaint = [&] {
        const QRect area =
            QRect(Start.left, Start.top, Start.width + Step, Start.height + Step)
                .adjusted(-ornavo::HandleSize, -ornavo::HandleSize, ornavo::HandleSize, ornavo::HandleSize);
        return Cpu([&] {
            stage.form().update(area);
            QCoreApplication::processEvents();
        });
    };
    const int code = Judge(
        {{"step of a drag among 60 elements", drag, "a repaint of the same area", repaint, 2}}, count, words);
    if (!stage.form().parts().drag.MouseIsDown()) return 1;  // it was no drag
    return code;
}
