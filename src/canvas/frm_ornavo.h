// SPDX-License-Identifier: MIT
// The main window: the canvas, which shows a layout as the jukebox would. It loads and saves its settings,
// runs its timers and owns the parts that the gestures work on.
#pragma once

#include <QTimer>
#include <string>

#include "canvas/anchors.h"
#include "canvas/canvas_events.h"
#include "canvas/canvas_parts.h"
#include "canvas/shape_points.h"
#include "canvas/welcome.h"
#include "editor/windows.h"
#include "platform/form.h"
#include "render/layout_host.h"
#include "render/surface.h"
#include "render/target.h"

namespace ornavo {

/// The main window and canvas.
class frm_Ornavo : public Form, public CompositionTarget, public Canvas {
    Q_OBJECT
public:
    /// `version` is in the caption while no skin is open.
    frm_Ornavo(Windows& windows, std::string version);

    /// Loads the skin of the command line before showing the window, so that it is complete when it appears.
    void Start(std::string commandLine);

    /// Finishes all edits, because another window becomes the target of compositions. False without a layout.
    bool BeginPreview();
    /// Makes this window the target again and composes it, so that elements have its controls again.
    void EndPreview();

    void UpdateCurrentLayout() override;
    void UpdateCaption() override;
    void ResetFormToOriginal() override;
    void ResetSelection() override { anchors_.ResetSelection(); }
    void HideSelectionTools() override;
    void PlaceAnchors() override { anchors_.PlaceAnchors(); }
    void SelectWithAnchors(Control& control) override { anchors_.SelectWithAnchors(control); }
    Selection& selection() override { return selection_; }

    int ScaleWidth() const override { return Form::ScaleWidth(); }
    int ScaleHeight() const override { return Form::ScaleHeight(); }
    LayoutHost& host() override { return host_; }
    void ShowForm() override {
        if (!hasGone_) show();
    }
    void ShowShapePoints() override { points_.ShowShapePoints(); }
    void ShowGrid() override;

    CanvasParts& parts() { return parts_; }

    QTimer tmrSelector;        // every 500 ms; makes a selected corner blink
    QTimer tmrResizer;         // 200 ms after the last resize
    QTimer tmrShowProperties;  // 500 ms after the last key that moved something
    void tmrSelector_Timer();
    void tmrResizer_Timer();

protected:
    void Form_Activate() override;
    void Form_Resize() override;
    bool Form_QueryUnload() override { return windows_.MayClose(); }
    void Form_Unload() override;
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    // Nothing on the canvas shows the focus, so nothing is painted when it comes or goes.
    void focusInEvent(QFocusEvent*) override {}
    void focusOutEvent(QFocusEvent*) override {}
    bool focusNextPrevChild(bool) override { return false; }  // Tab is a key of the canvas

private:
    void Form_Load();
    void SetTimers();
    void AddShortcut(QKeyCombination keys);
    void SaveSettings() const;
    void ShowWelcome();
    Frame OwnFrame() const;
    void ApplicationStateChanged(Qt::ApplicationState state);

    Windows& windows_;
    bool hasGone_ = false;  // closed; a later composition for the project panel must not show it
    std::string version_;
    std::string commandLine_;
    std::string problem_;   // the error of opening the command line's skin
    std::string notFound_;  // the command line if there is no such skin
    DragState drag_;
    Selection selection_;
    CanvasParts parts_;
    CanvasEvents events_;
    LayoutHost host_;
    ShapePoints points_;
    Anchors anchors_;
    WelcomeCard welcome_;
    Surface surface_;
    bool IsLoading = false;
    bool IsFirstActivate = false;
    bool IsActivated = false;
};

}  // namespace ornavo
