// SPDX-License-Identifier: MIT
#include "walk/desktop.h"

#include <sys/prctl.h>

#include <QRect>
#include <QRegularExpression>
#include <QThread>
#include <QtEndian>
#include <csignal>
#include <stdexcept>

namespace ornavo::walk {
namespace {

constexpr QSize ScreenSize = {1800, 1200};
constexpr int Patience = 20000, Interval = 15;  // milliseconds

[[noreturn]] void Fail(const QString& what) {
    throw std::runtime_error(what.toStdString());
}

void Start(QProcess& process, const QString& program, const QStringList& arguments,
           const QProcessEnvironment& environment) {
    process.setProcessEnvironment(environment);
    // Nothing outlives a walk that was killed.
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForStarted()) Fail(program + " does not start: " + process.errorString());
}

void Stop(QProcess& process) {
    if (process.state() == QProcess::NotRunning) return;
    process.terminate();
    if (!process.waitForFinished(3000)) process.kill();
    process.waitForFinished(3000);
}

}  // namespace

Desktop::Desktop(int limit) : limit_(limit * 1000LL) {
    clock_.start();
    environment_ = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment_.insert(name, home_.path());
    for (const char* name : {"WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XAUTHORITY", "QT_SCALE_FACTOR"})
        environment_.remove(name);
    environment_.insert("QT_QPA_PLATFORM", "xcb");
    environment_.insert("LC_ALL", "C.UTF-8");
    StartScreen();
    StartManager();
    ParkPointer();
}

Desktop::~Desktop() {
    Stop(program_);
    Stop(manager_);
    Stop(bus_);
    Stop(screen_);
}

QByteArray Desktop::FirstLine(QProcess& process, const std::string& what) {
    QByteArray line;
    WaitFor(what, [&] {
        process.waitForReadyRead(Interval);
        line += process.readAllStandardOutput();
        return line.endsWith('\n');
    });
    return line.trimmed();
}

void Desktop::StartScreen() {
    const QString size = Number(ScreenSize.width()) + 'x' + Number(ScreenSize.height()) + "x24";
    Start(screen_, "Xvfb",
          {"-displayfd", "1", "-screen", "0", size, "-noreset", "-nolisten", "tcp", "-fbdir", home_.path()},
          environment_);
    environment_.insert("DISPLAY", ':' + FirstLine(screen_, "a screen"));
    MapScreen();
}

/// openbox, or what the environment names. xfwm4 asks a session's bus for its settings; without the shadows
/// of its compositor the screen has the windows' own pixels.
void Desktop::StartManager() {
    const QString manager = environment_.value("ORNAVO_WALK_MANAGER", "openbox");
    QStringList arguments;
    if (manager == "xfwm4") {
        Start(bus_, "dbus-daemon", {"--session", "--nofork", "--print-address"}, environment_);
        environment_.insert("DBUS_SESSION_BUS_ADDRESS", FirstLine(bus_, "a session's bus"));
        arguments = {"--compositor=off"};
    }
    Start(manager_, manager, arguments, environment_);
    WaitFor("a window manager", [&] {
        return Tool("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id");
    });
}

/// The screen's pixels lie in a file in the X window dump format: a header of big-endian numbers, colours,
/// rows.
void Desktop::MapScreen() {
    enum Field { HeaderSize = 0, BytesPerLine = 12, ColourCount = 19 };
    constexpr int ColourSize = 12;
    frame_.setFileName(home_.filePath("Xvfb_screen0"));
    if (!frame_.open(QIODevice::ReadOnly)) Fail("the screen can't be read: " + frame_.errorString());
    const uchar* start = frame_.map(0, frame_.size());
    if (!start) Fail("the screen can't be mapped: " + frame_.errorString());
    const auto field = [&](Field which) { return qFromBigEndian<qint32>(start + 4 * which); };
    bytesPerLine_ = field(BytesPerLine);
    pixels_ = start + field(HeaderSize) + ColourSize * field(ColourCount);
}

void Desktop::StartProgram(const QStringList& arguments) {
    Start(program_, ORNAVO_BINARY_DIR "/ornavo", arguments, environment_);
}

int Desktop::ProgramEnd() {
    WaitFor("the program's end", [&] { return program_.waitForFinished(Interval); });
    if (program_.exitStatus() != QProcess::NormalExit) Fail("the program crashed");
    return program_.exitCode();
}

QString Desktop::Tool(const QString& program, const QStringList& arguments) {
    QProcess tool;
    tool.setProcessEnvironment(environment_);
    tool.start(program, arguments);
    if (!tool.waitForFinished(Patience))
        Fail(program + ' ' + arguments.join(' ') + ": " + tool.errorString());
    return QString::fromUtf8(tool.readAllStandardOutput());
}

QString Desktop::Window(const QString& title) {
    QString found;
    WaitFor("a window " + title.toStdString(), [&] {
        found = Tool("xdotool", {"search", "--onlyvisible", "--name", title}).section('\n', 0, 0);
        if (found.isEmpty() && program_.waitForFinished(0))
            Fail("the program has ended with code " + Number(program_.exitCode()));
        return !found.isEmpty();
    });
    return found;
}

void Desktop::WaitUntilGone(const QString& title) {
    WaitFor("the end of a window " + title.toStdString(), [&] {
        return Tool("xdotool", {"search", "--onlyvisible", "--name", title}).isEmpty();
    });
}

int Desktop::WindowCount(const QString& except) {
    const auto count = [&](const QString& by, const QString& text) {
        return Tool("xdotool", {"search", "--onlyvisible", by, text}).count('\n');
    };
    return static_cast<int>(count("--class", "ornavo") - count("--name", except));
}

void Desktop::WaitForFocus(const QString& title) {
    WaitFor("the focus in " + title.toStdString(), [&] { return FocusTitle() == title; });
}

QRect Desktop::Inside(const QString& window) {
    const QString told = Tool("xwininfo", {"-id", window});
    const auto number = [&](const QString& label) {
        const auto match = QRegularExpression(label + ":\\s*(-?\\d+)").match(told);
        if (!match.hasMatch()) Fail("no place of window " + window);
        return match.captured(1).toInt();
    };
    return {number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
            number("Height")};
}

void Desktop::Place(const QString& window, const QPoint& corner) {
    const QPoint before = Inside(window).topLeft();
    XDo({"windowmove", window, Number(corner.x()), Number(corner.y())});
    WaitFor("a moved window", [&] { return Inside(window).topLeft() != before; });
}

void Desktop::Resize(const QString& window, const QSize& inside) {
    XDo({"windowsize", window, Number(inside.width()), Number(inside.height())});
    WaitFor("a window of another size", [&] { return Inside(window).size() == inside; });
}

void Desktop::Activate(const QString& window) {
    // Asked for again and again: after a box the program takes the keyboard back once.
    WaitFor("the focus", [&] {
        XDo({"windowactivate", window});
        return Tool("xdotool", {"getwindowfocus"}).trimmed() == window;
    });
}

QString Desktop::WindowAt(const QPoint& at) {
    MoveTo(at);
    return Tool("xdotool", {"getmouselocation", "--shell"}).section("WINDOW=", 1).trimmed();
}

QRgb Desktop::Pixel(const QPoint& at) const {
    if (!QRect({}, ScreenSize).contains(at)) Fail("a look beside the screen");
    return qFromLittleEndian<quint32>(pixels_ + at.y() * bytesPerLine_ + 4 * at.x()) | 0xFF000000U;
}

QImage Desktop::Picture() const {
    return QImage(pixels_, ScreenSize.width(), ScreenSize.height(), bytesPerLine_, QImage::Format_RGB32)
        .copy();
}

void Desktop::WaitFor(const std::string& what, const std::function<bool()>& condition) {
    const qint64 end = std::min(clock_.elapsed() + Patience, limit_);
    while (!condition()) {
        if (clock_.elapsed() > end) throw std::runtime_error("waited in vain for " + what);
        if (screen_.state() != QProcess::Running) throw std::runtime_error("the screen has gone");
        screen_.waitForFinished(Interval);
    }
}

}  // namespace ornavo::walk
