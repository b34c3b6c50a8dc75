// SPDX-License-Identifier: MIT
// The main window: the canvas on which a layout stands as the jukebox would show it. Its life, its settings,
// its timers; owner of the parts that the gestures work on.
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

class frm_Ornavo : public Form, public CompositionTarget, public Canvas {
    Q_OBJECT
public:
    /// `version` is shown while no skin is open.
    frm_Ornavo(Windows& windows, std::string version);

    /// Shows the window with its first activation done, so that the first picture of it is complete.
    void Start(std::string commandLine);

    /// Finishes what is being edited, for another window takes the composition. False without a layout.
    bool BeginPreview();
    /// Takes it back; element and control are tied again as this window's own controls are.
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

    QTimer tmrSelector;        // 500 ms, always: a selected corner blinks
    QTimer tmrResizer;         // 200 ms after the last resize
    QTimer tmrShowProperties;  // 500 ms after the last key
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
    bool focusNextPrevChild(bool) override { return false; }  // Tab is a key of the canvas like others

private:
    void Form_Load();
    void SetTimers();
    void AddShortcut(QKeyCombination keys);
    void SaveSettings() const;
    void ShowWelcome();
    void ApplicationStateChanged(Qt::ApplicationState state);

    Windows& windows_;
    bool hasGone_ = false;  // closed: what is composed after it is for the project panel that stayed
    std::string version_;
    std::string commandLine_;
    std::string problem_;   // why the skin of the command line could not be opened
    std::string notFound_;  // the command line, when it leads to no skin
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
