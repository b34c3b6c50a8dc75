// SPDX-License-Identifier: MIT
// The entry point of every test program with windows: a home of its own, no screen, warnings are failures.
#include <QFont>
#include <QTemporaryDir>

#include "platform/settings.h"
#include "platform/startup.h"

namespace {

void OnMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (text.contains("This plugin does not support")) return;
    if (type == QtWarningMsg || type == QtCriticalMsg) ADD_FAILURE() << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toUtf8());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ornavo::PrepareProcess();
    QApplication application(argc, argv);
    QFont desktop;
    desktop.setPixelSize(12);  // 9 points at 96 dpi, whatever machine this is
    QApplication::setFont(desktop);
    ornavo::InitCommonControls(application);
    ornavo::UseSettingsFile(home.filePath("settings.ini"));
    qInstallMessageHandler(OnMessage);
    return RUN_ALL_TESTS();
}
