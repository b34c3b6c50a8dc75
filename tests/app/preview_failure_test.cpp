// SPDX-License-Identifier: MIT
// A preview that can't be opened: it is told, and the editor is there again.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/program.h"
#include "base/failure.h"
#include "document/current_skin.h"
#include "platform/clock.h"
#include "platform/settings.h"

namespace ornavo::testing {
namespace {

TEST(PreviewFailure, IsToldAndTheEditorIsThereAgain) {
    struct StoppedClock : Clock {
        QDateTime Now() const override { throw Failure(5, "Clock", "no clock"); }
    } stopped;
    const QTemporaryDir folder;
    UseSettingsFile(folder.filePath("settings.ini"));
    Program program("0.1", folder.path().toStdString(), folder.path().toStdString());
    objSkin = std::make_shared<dbSkin>();
    objCurrentLayout = objSkin->AddNewLayout("Standard");
    objSkin->SkinWidth = objSkin->SkinHeight = 700;
    program.Start("");
    program.ShowToolbox();
    const auto shown = [] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QStringList names;
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && !window->objectName().isEmpty()) names += window->objectName();
        names.sort();
        return names.join(' ').toStdString();
    };
    const std::string before = shown();
    EXPECT_EQ(before, "frm_Ornavo frm_SkinProject frm_Toolbox");
    QString told;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        told = box->text();
        box->accept();
    });
    UseClock(&stopped);
    program.ShowPreview();
    UseClock(nullptr);
    EXPECT_EQ(told, "no clock");
    EXPECT_EQ(shown(), before);
    program.ShowPreview();
    EXPECT_EQ(shown(), "EscapeTip frm_Preview") << "the next one is";
    program.LeavePreview();
    EXPECT_EQ(shown(), before);
}

}  // namespace
}  // namespace ornavo::testing
