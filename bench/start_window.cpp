// SPDX-License-Identifier: MIT
// Starts, paints its first window and ends: an empty Qt window, or with --editor SKIN the editor. The editor
// prints the milliseconds of each step on the error stream.
#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <cstring>
#include <memory>

#include "app/program.h"
#include "platform/startup.h"

namespace {

/// Ends the program after the first painting of its main window.
class FirstPaint : public QObject {
public:
    const QString mainWindow;  // by its name
    explicit FirstPaint(const char* name) : mainWindow(name) {}
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType() &&
            static_cast<QWidget*>(object)->isWindow())
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        return false;
    }
};

class EmptyWindow : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::gray); }
};

}  // namespace

int main(int argc, char** argv) {
    const bool editor = argc > 1 && std::strcmp(argv[1], "--editor") == 0;
    QElapsedTimer timer;
    timer.start();
    const auto tell = [&](const char* step) {
        if (editor) std::fprintf(stderr, "%s %.1f\n", step, static_cast<double>(timer.nsecsElapsed()) / 1e6);
        timer.restart();
    };
    if (editor) ornavo::PrepareProcess();
    QApplication application(argc, argv);
    FirstPaint firstPaint(editor ? "frm_Ornavo" : "");
    application.installEventFilter(&firstPaint);
    if (!editor) {
        EmptyWindow window;  // it has no name
        window.resize(800, 600);
        window.show();
        return QApplication::exec();
    }
    tell("application");
    ornavo::InitCommonControls(application);
    tell("style");
    ornavo::Program program("0.1", "", "");
    tell("windows");
    program.Start(argc > 2 ? argv[2] : "");
    tell("skin");
    const int code = QApplication::exec();
    tell("painting");
    std::fflush(stderr);
    return code;
}
