// SPDX-License-Identifier: MIT
// Starts and ends the editor.
#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <cstdio>
#include <string_view>

#include "app/program.h"
#include "base/failure.h"
#include "base/paths.h"
#include "platform/prompts.h"
#include "platform/startup.h"
#include "project/own_folder.h"

namespace {

constexpr const char* Usage =
    "Usage: ornavo [SKIN]\n"
    "Edits the skins of a touch-screen jukebox.\n\n"
    "SKIN is the name of a skin in the program's folder \"Skins\", a skin's folder, or the\n"
    "SkinSettings.xml in it. Without SKIN the editor starts empty.\n\n"
    "  --help     show this text\n"
    "  --version  show the version\n";

/// The first two numbers of the version: "0.1" for "0.1.0".
std::string MajorMinor() {
    const std::string_view version = ORNAVO_VERSION;
    return std::string(version.substr(0, version.rfind('.')));
}

/// All arguments joined by blanks, because a skin's name may contain blanks.
std::string CommandLine(const QStringList& arguments) {
    return arguments.mid(1).join(' ').toStdString();
}

std::filesystem::path PathOf(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

std::string FolderWithSamples(const std::string& data) {
    const std::filesystem::path executable = PathOf(QCoreApplication::applicationDirPath());
    const std::filesystem::path own = ornavo::OwnFolder(executable, data);
    try {
        ornavo::BringSamples(ornavo::SampleFolder(executable), own);
    } catch (const ornavo::Failure& failure) {
        std::fprintf(stderr, "ornavo: %s\n", failure.what());
    }
    return ornavo::ToText(own);
}

/// The icon for window frames, the task bar and the window switcher.
QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) icon.addFile(QStringLiteral(":/ornavo-%1.png").arg(size));
    return icon;
}

/// Shows exceptions from event handlers as messages and keeps the program running.
class Application : public QApplication {
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& failure) {
            Tell(failure.what());
            return true;
        }
    }

private:
    void Tell(const char* reason) {
        std::fprintf(stderr, "ornavo: %s\n", reason);
        if (isTelling_) return;
        const ornavo::Raised telling(isTelling_);
        ornavo::Attempt([&] {
            ornavo::prompts().Message(reason, "Ornavo", ornavo::Icon::Critical, ornavo::Buttons::Ok);
        });
    }
    bool isTelling_ = false;
};

int Run(int argc, char** argv) {
    ornavo::PrepareProcess();
    Application application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("ornavo"));
    ornavo::InitCommonControls(application);
    const std::string data = ornavo::DataFolder();
    ornavo::Program program(MajorMinor(), FolderWithSamples(data), data);
    program.Start(CommandLine(QCoreApplication::arguments()));
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--help") return std::fputs(Usage, stdout) < 0;
        if (argument == "--version") return std::puts("ornavo " ORNAVO_VERSION) < 0;
    }
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "ornavo: %s\n", failure.what());
        return 1;
    }
}
