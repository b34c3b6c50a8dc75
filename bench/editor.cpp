// SPDX-License-Identifier: MIT
// What the user waits for in the editor with the rich sample, on a screen of its own: from the event to the
// pixels on the screen.
#include <QAbstractItemView>
#include <QTest>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "app/program.h"
#include "canvas/element_families.h"
#include "document/current_skin.h"
#include "judge.h"
#include "platform/startup.h"
#include "project/layout_list.h"
#include "render/layout_host.h"
#include "screen.h"

namespace ornavo::bench {
namespace {

constexpr int Steps = 100, Step = 6;  // of a drag; pixels
constexpr int Percentile = 99;

template <class T>
T& Window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<T*>(widget)) return *window;
    throw std::runtime_error("a window is missing");
}

/// Until all is painted and the screen has it.
void Settle() {
    QCoreApplication::processEvents();
    QGuiApplication::sync();
}

/// Whether a window of this name has been painted since it was asked for.
class Painted : public QObject {
public:
    explicit Painted(const char* name) : window(name) { qApp->installEventFilter(this); }
    const QString window;
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType())
            isPainted_ |= static_cast<QWidget*>(object)->window()->objectName() == window;
        return false;
    }
    void Wait() {
        while (!isPainted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        Settle();
    }

private:
    bool isPainted_ = false;
};

/// The editor with the rich sample.
class Stage {
public:
    Stage() : program_("0.1", "", "") {
        program_.Start(RICH_SKIN);
        QTest::qWait(1000);  // its windows come up
    }
    double SwitchLayout() {
        auto& list = *Window<frm_SkinProject>().lst_Layouts;
        layout_ = (layout_ + 1) % 2;
        return Wall([&] {
            list.setCurrentItem(list.topLevelItem(layout_));
            Settle();
        });
    }
    double ReleaseUntilSheet() {
        const QPoint at = Middle(NextButton());
        QTest::mousePress(Main().windowHandle(), Qt::LeftButton, {}, at);
        Settle();
        Painted sheet("frm_Properties");
        return Wall([&] {
            QTest::mouseRelease(Main().windowHandle(), Qt::LeftButton, {}, at);
            sheet.Wait();
        });
    }
    double SlowestSteps() {
        const QPoint at = Middle(NextButton());
        std::vector<double> steps;
        QTest::mousePress(Main().windowHandle(), Qt::LeftButton, {}, at);
        for (int i = 0; i < Steps; ++i)
            steps.push_back(Wall([&] {
                QTest::mouseMove(Main().windowHandle(), at + (i % 2 ? QPoint() : QPoint(Step, Step)));
                Settle();
            }));
        if (!Main().parts().drag.MouseIsDown()) throw std::runtime_error("the drag has ended");
        QTest::mouseRelease(Main().windowHandle(), Qt::LeftButton, {}, at);
        Settle();
        std::sort(steps.begin(), steps.end());
        return steps[Steps * Percentile / 100 - 1];
    }

private:
    static frm_Ornavo& Main() { return Window<frm_Ornavo>(); }
    static QPoint Middle(const Control& control) { return control.geometry().center(); }
    /// By turns one of two that nothing covers.
    Control& NextButton() {
        isFirst_ = !isFirst_;
        for (const dbLayoutElementRef& element : *objCurrentLayout->dbLayoutElements)
            if (element->ElementName == (isFirst_ ? "Play" : "Pause"))
                return Main().host().Element[element->ControlIndex];
        throw std::runtime_error("a button is missing");
    }
    Program program_;
    int layout_ = 0;
    bool isFirst_ = false;
};

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    using namespace ornavo::bench;
    const Screen screen;
    ornavo::PrepareProcess();
    QApplication application(count, words);
    ornavo::InitCommonControls(application);
    Stage stage;
    return Judge({{"release on an element, to its sheet on the screen",
                   [&] { return stage.ReleaseUntilSheet(); },
                   "",
                   {},
                   33},
                  {"99 of 100 steps of a drag in the rich sample, to the screen",
                   [&] { return stage.SlowestSteps(); },
                   "",
                   {},
                   8},
                  {"another layout of the rich sample, to the screen",
                   [&] { return stage.SwitchLayout(); },
                   "",
                   {},
                   16.7}},
                 count, words);
}
