// SPDX-License-Identifier: MIT
// The editor's windows as a reader of the guide works them.
#pragma once

#include "camera.h"
#include "sheet.h"

namespace ornavo::guide {

enum Kind { Button = 1, Graphic, Volume, Info };  // as the toolbox has them

class Editor {
public:
    /// Starts the program with the arguments.
    Editor(walk::Desktop& desktop, const QStringList& arguments);

    /// The button of that number on Skin Project, from 0: open, create, save.
    void ClickProject(int button);
    void ClickSkinProperties();
    /// The toolbox below Skin Project, the canvas beside them.
    void Arrange();
    void Add(Kind kind);
    /// A switch of the toolbox, by its line from 0.
    void ToolboxLine(int line);
    void Click(const QPoint& onCanvas, int button = 1);
    void Drag(const QPoint& from, const QPoint& to);
    /// The menu of what is there, and the line with that letter.
    void OpenMenu(const QPoint& onCanvas);
    void Menu(const QPoint& onCanvas, const char* letter);
    void Save();
    void Close();

    QRect Canvas() { return desktop_.Inside(main_); }
    /// With its frame.
    QRect Frame(const QString& window);
    /// Skin Project, toolbox, canvas and, once it has been open, the sheet.
    QRect Everything();
    /// A part of the canvas, on the screen.
    QRect Part(const QRect& onCanvas) { return onCanvas.translated(Canvas().topLeft()); }
    QString Skins() const { return desktop_.Home() + "/ornavo/Skins/"; }

    Sheet sheet;
    const QString& main() const { return main_; }
    const QString& panel() const { return panel_; }
    const QString& toolbox() const { return toolbox_; }

private:
    walk::Desktop& desktop_;
    QString main_, panel_, toolbox_;
};

}  // namespace ornavo::guide
