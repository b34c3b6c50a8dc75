// SPDX-License-Identifier: MIT
#include "screen.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace ornavo::bench {
namespace {

constexpr std::chrono::milliseconds Interval{10};
constexpr int Patience = 1000;  // intervals

void WaitFor(const char* what, const std::function<bool()>& condition) {
    for (int i = 0; i < Patience; ++i) {
        if (condition()) return;
        std::this_thread::sleep_for(Interval);
    }
    std::fprintf(stderr, "screen: waited in vain for %s\n", what);
    std::exit(1);
}

/// Starts a program that ends with this process. What it writes goes into the file.
pid_t Start(std::vector<std::string> words, const std::filesystem::path& output) {
    const pid_t child = fork();
    if (child != 0) return child;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (!std::freopen(output.c_str(), "w", stdout) || !std::freopen("/dev/null", "w", stderr)) _exit(126);
    std::vector<char*> given;
    for (std::string& word : words) given.push_back(word.data());
    given.push_back(nullptr);
    execvp(given[0], given.data());
    _exit(127);
}

void End(pid_t child) {
    if (child <= 0) return;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
}

}  // namespace

Screen::Screen() {
    std::string place = (std::filesystem::temp_directory_path() / "ornavo-bench-XXXXXX").string();
    if (!mkdtemp(place.data())) std::exit(1);
    home_ = place;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        setenv(name, home_.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    // A desktop has a bus. Where there is none, a program that wants it would first start one.
    setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + (home_ / "none").string()).c_str(), 1);
    server_ =
        Start({"Xvfb", "-displayfd", "1", "-screen", "0", "1600x1200x24", "-noreset", "-nolisten", "tcp"},
              home_ / "display");
    std::string number;
    WaitFor("a screen", [&] { return !!std::getline(std::ifstream(home_ / "display") >> std::ws, number); });
    setenv("DISPLAY", (":" + number).c_str(), 1);
    const std::filesystem::path ready = home_ / "ready";
    manager_ = Start({"openbox", "--startup", "touch " + ready.string()}, "/dev/null");
    WaitFor("a window manager", [&] { return std::filesystem::exists(ready); });
}

Screen::~Screen() {
    End(manager_);
    End(server_);
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
}

}  // namespace ornavo::bench
