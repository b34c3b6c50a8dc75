// SPDX-License-Identifier: MIT
// The main window: the canvas on which a layout stands as the jukebox would show it. Its life, its settings
// and its one deferred rebuild.
#pragma once

#include <QTimer>
#include <string>

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

    void UpdateCurrentLayout() override;
    void UpdateCaption() override;
    void ResetFormToOriginal() override;

    int ScaleWidth() const override { return Form::ScaleWidth(); }
    int ScaleHeight() const override { return Form::ScaleHeight(); }
    LayoutHost& host() override { return host_; }
    void ShowGrid() override;

    QTimer tmrResizer;  // 200 ms after the last resize
    void tmrResizer_Timer();

protected:
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload() override;
    void paintEvent(QPaintEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dropEvent(QDropEvent*) override;

private:
    void Form_Load();
    void SaveSettings() const;
    void OpenOrTell(const std::string& skinName);

    Windows& windows_;
    std::string version_;
    std::string commandLine_;
    std::string problem_;  // why the skin of the command line could not be opened
    LayoutHost host_;
    Surface surface_;
    bool IsLoading = false;
    bool IsFirstActivate = false;
    bool IsActivated = false;
};

}  // namespace ornavo
