// SPDX-License-Identifier: MIT
#include "editor.h"

#include <QRegularExpression>

namespace ornavo::guide {
namespace {

constexpr QPoint PanelPlace = {10, 40}, ToolboxPlace = {10, 330}, CanvasPlace = {240, 40};
constexpr int FirstLine = 134, LineHeight = 18;  // of the toolbox's switches, in pixels

}  // namespace

Editor::Editor(walk::Desktop& desktop, const QStringList& arguments) : sheet(desktop), desktop_(desktop) {
    desktop_.StartProgram(arguments);
    main_ = desktop_.Window("^Ornavo");
    panel_ = desktop_.Window("^Skin Project$");
    desktop_.Place(panel_, PanelPlace);
}

void Editor::ClickProject(int button) {
    const QRect panel = desktop_.Inside(panel_);
    desktop_.Click(panel.topLeft() + QPoint(panel.width() * (2 * button + 1) / 6, 20));
}

void Editor::ClickSkinProperties() {
    const QRect panel = desktop_.Inside(panel_);
    desktop_.Click(panel.bottomLeft() + QPoint(panel.width() / 2, -65));
}

void Editor::Arrange() {
    toolbox_ = desktop_.Window("^Toolbox$");
    desktop_.Place(main_, CanvasPlace);
    desktop_.Place(toolbox_, ToolboxPlace);
    desktop_.ParkPointer();
}

void Editor::Add(Kind kind) {
    const QRect box = desktop_.Inside(toolbox_);
    const int column = (kind - 1) % 2, row = (kind - 1) / 2;
    desktop_.Click(box.topLeft() + QPoint(box.width() * (2 * column + 1) / 4, 30 + 60 * row));
}

void Editor::ToolboxLine(int line) {
    desktop_.Click(desktop_.Inside(toolbox_).topLeft() + QPoint(30, FirstLine + line * LineHeight));
}

void Editor::Click(const QPoint& onCanvas, int button) {
    desktop_.Click(Canvas().topLeft() + onCanvas, button);
}

void Editor::Drag(const QPoint& from, const QPoint& to) {
    const QPoint corner = Canvas().topLeft();
    desktop_.Press(corner + from);
    for (const int step : {1, 2, 3}) desktop_.MoveTo(corner + from + (to - from) * step / 3);
    desktop_.Release();
}

void Editor::OpenMenu(const QPoint& onCanvas) {
    const int before = desktop_.WindowCount("^Properties$");
    Click(onCanvas, 3);
    desktop_.WaitFor("a menu", [&] { return desktop_.WindowCount("^Properties$") > before; });
}

void Editor::Menu(const QPoint& onCanvas, const char* letter) {
    OpenMenu(onCanvas);
    desktop_.Key({letter});
}

void Editor::Save() {
    desktop_.Activate(main_);
    desktop_.Key({"ctrl+s"});
    desktop_.WaitFor("a saved skin", [&] { return !desktop_.Title(main_).contains('*'); });
}

void Editor::Close() {
    desktop_.Activate(main_);
    desktop_.Key({"alt+F4"});
    desktop_.ProgramEnd();
}

QRect Editor::Frame(const QString& window) {
    const QString told = desktop_.Tool("xprop", {"-id", window, "_NET_FRAME_EXTENTS"});
    const auto match = QRegularExpression("= (\\d+), (\\d+), (\\d+), (\\d+)").match(told);
    const auto side = [&](int number) { return match.captured(number).toInt(); };
    return desktop_.Inside(window).adjusted(-side(1), -side(3), side(2), side(4));
}

QRect Editor::Everything() {
    QRect all = Frame(panel_) | Frame(main_);
    if (!sheet.window().isEmpty()) all |= Frame(sheet.window());
    return all.adjusted(-8, -8, 8, 8);
}

}  // namespace ornavo::guide
