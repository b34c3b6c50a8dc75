// SPDX-License-Identifier: MIT
// ornavo-cli: the document and the renderer for scripts. Exit codes: 0 done, 1 failed, 2 wrong usage.
#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <map>

#include "base/failure.h"
#include "cli/commands.h"
#include "platform/shown.h"
#include "platform/startup.h"

namespace ornavo {
namespace {

constexpr const char* Usage =
    "Usage: ornavo-cli COMMAND SKIN [OPTIONS]\n"
    "SKIN is a skin's folder, the SkinSettings.xml in it, or the name of a skin in your folder \"Skins\".\n\n"
    "  dump SKIN [--raw]                     the skin as JSON; --raw without the preferences that its file "
    "lacks\n"
    "  save SKIN [--as NAME] [--keep-existing] [--replace]\n"
    "                                        write the skin, also under another name beside it, and tell its "
    "file;\n"
    "                                        --replace also over another skin or a damaged file\n"
    "  place SKIN --layout KEY [--size WxH]  where elements and points stand, as JSON\n"
    "  render SKIN --layout KEY --out FILE.png [--size WxH] [--view preview|canvas] [--edge soft|hard]\n"
    "         [--time HH:MM:SS]              a picture of the layout, its clocks at that time\n"
    "  recolour IN OUT --hue N --saturation N\n"
    "                                        a picture in one hue and saturation, 0 to 255 each; OUT ends in "
    ".bmp\n"
    "                                        or .jpg, which is written in the best quality\n\n"
    "  --help     show this text\n"
    "  --version  show the version\n";

/// A command and its options.
struct Command {
    const char* name;
    QStringList options;  // each takes a value, unless its name ends in "!"
    int (*run)(const Arguments&);
    bool pictures = false;  // takes IN and OUT instead of a skin
};

const Command Commands[] = {
    {"dump", {"raw!"}, Dump},
    {"save", {"as", "keep-existing!", "replace!"}, Save},
    {"place", {"layout", "size"}, Place},
    {"render", {"layout", "out", "size", "view", "edge", "time"}, Render},
    {"recolour", {"hue", "saturation"}, Recolour, true},
};

int Misused(const QString& reason) {
    std::fprintf(stderr, "ornavo-cli: %s\nTry 'ornavo-cli --help'.\n", qPrintable(reason));
    return 2;
}

void AddOptions(QCommandLineParser& parser, const Command& command) {
    for (const QString& name : command.options) {
        if (name.endsWith('!'))
            parser.addOption(QCommandLineOption(name.chopped(1)));
        else
            parser.addOption(QCommandLineOption(name, {}, name));
    }
}

int RunCommand(const Command& command, const QStringList& words) {
    QCommandLineParser parser;
    AddOptions(parser, command);
    if (!parser.parse(words)) return Misused(parser.errorText());
    const QStringList names = parser.positionalArguments();
    if (names.size() != (command.pictures ? 2 : 1))
        return Misused(command.pictures ? "name two pictures, IN and OUT" : "name one skin");
    Arguments arguments;
    arguments.skin = names.first().toStdString();
    arguments.target = names.last().toStdString();
    for (const QString& name : parser.optionNames())
        arguments.options[name.toStdString()] = parser.value(name).toStdString();
    try {
        return command.run(arguments);
    } catch (const UsageError& error) {
        return Misused(Shown(error.description()));
    }
}

int Run(const QStringList& words) {
    if (words.contains("--help")) return std::fputs(Usage, stdout) < 0;
    if (words.contains("--version")) return std::puts("ornavo-cli " ORNAVO_VERSION) < 0;
    if (words.size() < 2) return Misused("no command");
    for (const Command& command : Commands)
        if (words[1] == command.name) return RunCommand(command, words.mid(1));
    return Misused("unknown command '" + words[1] + "'");
}

/// Keeps Qt's warnings about the environment off the error stream.
void OnQtMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) Tell(text.toStdString());
}

}  // namespace
}  // namespace ornavo

int main(int argc, char** argv) {
    qInstallMessageHandler(ornavo::OnQtMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    try {
        ornavo::PrepareProcess();
        QApplication application(argc, argv);
        ornavo::InitCommonControls(application);
        return ornavo::Run(QCoreApplication::arguments());
    } catch (const std::exception& failure) {
        ornavo::Tell(failure.what());
        return 1;
    }
}
