// SPDX-License-Identifier: MIT
// The preview: the layout as the jukebox would show it, in a frameless window cut to its shape. The skin's
// own buttons operate it while a song seems to play.
#pragma once

#include <QTimer>

#include "editor/windows.h"
#include "platform/form.h"
#include "playback/info_show.h"
#include "preview/frm_resizer.h"
#include "preview/preview_mouse.h"
#include "render/layout_host.h"
#include "render/surface.h"
#include "render/target.h"

class QLabel;

namespace ornavo {

/// The window of the preview.
class frm_Preview : public Form, public CompositionTarget, public PreviewWindow {
    Q_OBJECT
public:
    explicit frm_Preview(Windows& windows);
    ~frm_Preview() override;

    /// Composes the current layout at the skin's size and shows the window at its stored place, or else at
    /// this corner (twips). Its first frame is already shaped and complete.
    void Open(const Point& standardCorner);

    InfoShow& infos() { return infos_; }
    frm_Resizer& resizer() { return resizer_; }

    QTimer tmrScroller, tmrSeekerDemo;
    QTimer tmrTip;  // single shot; hides the tip after the first seconds

    // CompositionTarget
    int ScaleWidth() const override { return Form::ScaleWidth(); }
    int ScaleHeight() const override { return Form::ScaleHeight(); }
    LayoutHost& host() override { return host_; }
    void SetShape(const QRegion& region) override;

    // PreviewWindow
    bool IsMaximised() const override { return WindowState() == StateMaximised; }
    QPoint Corner() const override { return pos(); }
    QSize Inside() const override { return size(); }
    void MoveCorner(const QPoint& corner) override;
    void ShowOutline(const QSize& size) override;
    void EndOutline() override;
    void ToggleMaximise() override;
    void Minimise() override { SetWindowState(StateMinimised); }
    void Unload() override { close(); }

protected:
    void Form_Resize() override;
    void Form_Unload() override;
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    void Form_Load(const Point& standardCorner);
    void Rebuild();
    void ShowTip();

    Windows& windows_;
    InfoShow infos_;
    PreviewMouse mouse_;
    LayoutHost host_;
    Surface ground_;  // never drawn on; paints the plain colour behind the elements
    frm_Resizer resizer_;
    QLabel* tip_;
    QSize composed_;  // the size for which the controls are composed
};

}  // namespace ornavo
