// SPDX-License-Identifier: MIT
// Starts, paints its first window, writes a byte on the standard output and ends: an empty Qt window, or with
// --editor [SKIN] the editor, which prints the milliseconds of each step on the error stream. With --stay it
// ends a second later.
#include <unistd.h>

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>

#include "app/program.h"
#include "platform/startup.h"

namespace {

/// Waits for the first painting of a window that reaches the screen.
class FirstPaint : public QObject {
public:
    const QString mainWindow;  // by its name
    const int stay;            // milliseconds until the end
    std::function<void()> onPaint;
    FirstPaint(const char* name, int milliseconds, std::function<void()> told)
        : mainWindow(name), stay(milliseconds), onPaint(std::move(told)) {}
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Paint || isPainted_ || !object->isWidgetType()) return false;
        const QWidget* window = static_cast<QWidget*>(object)->window();  // which its controls may cover
        if (window->objectName() != mainWindow || !window->windowHandle()->isExposed()) return false;
        isPainted_ = true;
        // Behind the event, all of the window has been painted and sent to the screen.
        QMetaObject::invokeMethod(
            qApp, [this] { Tell(); }, Qt::QueuedConnection);
        return false;
    }

private:
    void Tell() const {
        onPaint();
        std::fputc('.', stdout);
        std::fflush(stdout);
        QTimer::singleShot(stay, qApp, [this] {
            onPaint();
            std::fflush(nullptr);
            _exit(0);  // what the end costs does not count
        });
    }
    bool isPainted_ = false;
};

class EmptyWindow : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::gray); }
};

double Now(clockid_t clock) {
    timespec now = {};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    const double begin = Now(CLOCK_MONOTONIC);
    const bool editor = argc > 1 && std::strcmp(argv[1], "--editor") == 0;
    const auto tell = [&](const char* step) {
        if (!editor) return;
        std::fprintf(
            stderr, "%-12s until %6.1f ms of the clock, %6.1f of this thread, %6.1f of the process\n", step,
            Now(CLOCK_MONOTONIC) - begin, Now(CLOCK_THREAD_CPUTIME_ID), Now(CLOCK_PROCESS_CPUTIME_ID));
    };
    if (editor) ornavo::PrepareProcess();
    QApplication application(argc, argv);
    const int stay = QCoreApplication::arguments().contains("--stay") ? 1000 : 0;
    FirstPaint firstPaint(editor ? "frm_Ornavo" : "", stay, [&] { tell("painting"); });
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
    tell("end");
    return code;
}
