// SPDX-License-Identifier: MIT
// A desktop of its own for walks through real windows: a screen, a window manager, an empty home, the
// program; mouse and keys to work it, eyes to see what came of it. Nothing sleeps for a result: every wait
// has a condition and a deadline. What goes wrong is thrown as std::runtime_error.
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <string>

namespace ornavo::walk {

inline QString Number(int value) {
    return QString::number(value);
}

class Desktop {
public:
    /// Starts screen and window manager; `limit` is how long the whole walk may take, in seconds.
    explicit Desktop(int limit);
    ~Desktop();

    /// Starts the program; its windows come up in their own time.
    void StartProgram(const QStringList& arguments = {});
    /// Waits until it has ended by itself, and gives its exit code.
    int ProgramEnd();
    QString Home() const { return home_.path(); }

    /// An id for the functions below, of the visible window whose title fits the expression. Waits for it.
    QString Window(const QString& title);
    void WaitUntilGone(const QString& title);
    /// How many windows of the program can be seen, menus too, but not those of that title.
    int WindowCount(const QString& except);
    void WaitForFocus(const QString& title);
    QString FocusTitle() { return Tool("xdotool", {"getwindowfocus", "getwindowname"}).trimmed(); }
    QString Title(const QString& window) { return Tool("xdotool", {"getwindowname", window}).trimmed(); }
    QRect Inside(const QString& window);  // without its frame, on the screen
    void Place(const QString& window, const QPoint& corner);
    void Resize(const QString& window, const QSize& inside);
    void Activate(const QString& window);

    // All places are on the screen. A question behind a release has it done before the pointer goes on: moves
    // overtake buttons, and the release would come from where the pointer is parked.
    void Click(const QPoint& at, int button = 1) {
        XDo({"mousemove", Number(at.x()), Number(at.y()), "click", Number(button), "getmouselocation"});
    }
    void DoubleClick(const QPoint& at) {
        XDo({"mousemove", Number(at.x()), Number(at.y()), "click", "--repeat", "2", "--delay", "40", "1",
             "getmouselocation"});
    }
    void Press(const QPoint& at, int button = 1) {
        XDo({"mousemove", Number(at.x()), Number(at.y()), "mousedown", Number(button)});
    }
    void MoveTo(const QPoint& at) { XDo({"mousemove", Number(at.x()), Number(at.y())}); }
    void Release(int button = 1) { XDo({"mouseup", Number(button), "getmouselocation"}); }
    void ParkPointer() { MoveTo({1798, 1198}); }  // where it covers nothing
    /// "Right", "ctrl+s", ...
    void Key(const QStringList& keys) { XDo(QStringList{"key", "--clearmodifiers"} + keys); }
    void Type(const QString& text) { XDo({"type", "--delay", "1", "--", text}); }

    QString Tool(const QString& program, const QStringList& arguments);  // what it says
    QString WindowAt(const QPoint& at);  // the id of what a click there would hit

    QRgb Pixel(const QPoint& at) const;  // opaque, as it is on the screen now
    QImage Picture() const;

    /// Until the condition holds; `what` says in a failure what did not come.
    void WaitFor(const std::string& what, const std::function<bool()>& condition);

private:
    void StartScreen();
    void MapScreen();
    void StartManager();
    QByteArray FirstLine(QProcess& process, const std::string& what);
    void XDo(const QStringList& arguments) { Tool("xdotool", arguments); }

    QElapsedTimer clock_;
    qint64 limit_;  // milliseconds
    QTemporaryDir home_;
    QProcessEnvironment environment_;
    QProcess screen_, bus_, manager_, program_;
    QFile frame_;
    const uchar* pixels_ = nullptr;
    int bytesPerLine_ = 0;
};

}  // namespace ornavo::walk
