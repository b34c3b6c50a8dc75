// SPDX-License-Identifier: MIT
// ornavo-cli: the document and the renderer for scripts. Exit codes: 0 done, 1 failed, 2 wrong usage.
#include <QApplication>
#include <algorithm>
#include <cstdio>

#include "base/failure.h"
#include "cli/commands.h"
#include "platform/startup.h"

namespace ornavo {
namespace {

const Command Commands[] = {
    {.name = "check",
     .operands = {"SKIN"},
     .options = {{"json", ""}, {"strict", ""}, {"ignore", "FILE"}},
     .help =
         "What is wrong with the skin. The exit code is 1 if there is an error, with --strict also if there "
         "is a warning, and 3 if the skin can't be read; FILE has what is not to be told.",
     .run = Check,
     .failed = 3},
    {.name = "compare",
     .operands = {"SKIN", "SKIN"},
     .options = {{"json", ""}, {"size", "WxH"}, {"tolerance", "N"}, {"out", "FOLDER"}},
     .help =
         "What the second skin has other than the first, and how many pixels of their layouts. A pixel "
         "counts whose channels differ by more than N; before, after and difference of each changed layout "
         "are written into FOLDER. The exit code is 0 if they are equal, 1 if they differ and 3 if one "
         "can't be read.",
     .run = CompareTwo,
     .failed = 3},
    {.name = "dump",
     .operands = {"SKIN"},
     .options = {{"raw", ""}},
     .help = "The skin as JSON; --raw without the preferences that its file lacks.",
     .run = Dump},
    {.name = "save",
     .operands = {"SKIN"},
     .options = {{"as", "NAME"}, {"keep-existing", ""}, {"replace", ""}},
     .help =
         "Write the skin, also under another name beside it, and tell its file; --keep-existing replaces no "
         "picture of its folder, --replace also another skin or a damaged file.",
     .run = Save},
    {.name = "place",
     .operands = {"SKIN"},
     .options = {{"layout", "KEY", true}, {"size", "WxH"}},
     .help = "Where elements and points stand, as JSON.",
     .run = Place},
    {.name = "render",
     .operands = {"SKIN"},
     .options = {{"layout", "KEY", true},
                 {"out", "FILE.png", true},
                 {"size", "WxH"},
                 {"view", "preview|canvas"},
                 {"edge", "soft|hard"},
                 {"time", "HH:MM:SS"}},
     .help = "A picture of the layout, its clocks at that time.",
     .run = Render},
    {.name = "sheet",
     .operands = {"SKIN"},
     .options = {{"out", "FILE.png|FILE.html", true},
                 {"layouts", "KEY", false, true},
                 {"sizes", "WxH", false, true},
                 {"states", ""}},
     .help =
         "The layouts at the usual sizes of windows on one picture, or on one page with what check tells; "
         "--states adds the states of each button.",
     .run = Sheet},
    {.name = "recolour",
     .operands = {"IN", "OUT"},
     .options = {{"hue", "N", true}, {"saturation", "N", true}},
     .help =
         "A picture in one hue and saturation, 0 to 255 each; OUT ends in .bmp or .jpg, which is written in "
         "the best quality.",
     .run = Recolour},
};

std::string Usage(std::span<const Command> commands) {
    return "Usage: ornavo-cli COMMAND ...\n"
           "SKIN is a skin's folder, the SkinSettings.xml in it, or the name of a skin in your folder "
           "\"Skins\".\n\n" +
           UsageOf(commands) +
           "\n  --help     show this text, or that of one command\n  --version  show the version\n";
}

int Misused(const std::string& reason) {
    std::fprintf(stderr, "ornavo-cli: %s\nTry 'ornavo-cli --help'.\n", reason.c_str());
    return 2;
}

int RunCommand(const Command& command, const QStringList& words) {
    try {
        return command.run(Parse(command, words));
    } catch (const UsageError& error) {
        return Misused(error.description());
    } catch (const std::exception& failure) {
        Tell(failure.what());
        return command.failed;
    }
}

int Run(const QStringList& words) {
    const std::string name = words.size() < 2 ? "" : words[1].toStdString();
    const auto command = std::ranges::find(Commands, name, &Command::name);
    const bool isNamed = command != std::end(Commands);
    if (words.contains("--help"))
        return std::fputs(Usage(isNamed ? std::span(command, 1) : std::span(Commands)).c_str(), stdout) < 0;
    if (words.contains("--version")) return std::puts("ornavo-cli " ORNAVO_VERSION) < 0;
    if (name.empty()) return Misused("no command");
    if (!isNamed) return Misused("unknown command '" + name + "'");
    return RunCommand(*command, words.mid(1));
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
