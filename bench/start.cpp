// SPDX-License-Identifier: MIT
// Time to the first painted window, and peak memory, of the editor and of an empty Qt window. Starts the two
// processes alternately; prints medians and their ratio to the empty window.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int Rounds = 15;

struct Case {
    const char* name;
    std::vector<std::string> words;
    std::vector<double> milliseconds;
    std::vector<double> megabytes;
};

void Run(Case& one, bool quiet) {
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        if (quiet && !std::freopen("/dev/null", "w", stderr)) _exit(126);
        std::vector<char*> words;
        for (std::string& word : one.words) words.push_back(word.data());
        words.push_back(nullptr);
        execv(words[0], words.data());
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", one.name);
        std::exit(1);
    }
    one.milliseconds.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    one.megabytes.push_back(static_cast<double>(usage.ru_maxrss) / 1024);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main() {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    Case cases[] = {{"empty Qt window", {START_WINDOW}, {}, {}},
                    {"editor, no skin", {START_WINDOW, "--editor"}, {}, {}},
                    {"editor, rich skin", {START_WINDOW, "--editor", RICH_SKIN}, {}, {}}};
    for (int round = 0; round < Rounds; ++round)
        for (Case& one : cases) Run(one, true);
    const double time = Median(cases[0].milliseconds), memory = Median(cases[0].megabytes);
    for (const Case& one : cases)
        std::printf("%-18s  %7.1f ms  x%.2f  %6.1f MB  x%.2f\n", one.name, Median(one.milliseconds),
                    Median(one.milliseconds) / time, Median(one.megabytes), Median(one.megabytes) / memory);
    std::printf("what the rich skin's start is spent on, in ms:\n");
    std::fflush(stdout);
    Run(cases[2], false);
}
