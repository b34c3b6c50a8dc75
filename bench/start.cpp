// SPDX-License-Identifier: MIT
// Starts of the editor beside starts of an empty Qt window: time to the first painting, processor time, peak
// memory.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "judge.h"
#include "screen.h"

namespace {

using namespace ornavo::bench;

constexpr double MostCpu = 100;  // milliseconds

/// What one start has cost.
struct Start {
    double painted = 0, cpu = 0;  // milliseconds
    double megabytes = 0;         // at most
};

double Milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

[[noreturn]] void Become(std::vector<std::string> words, int output) {
    if (dup2(output, STDOUT_FILENO) < 0 || !std::freopen("/dev/null", "w", stderr)) _exit(126);
    std::vector<char*> given;
    for (std::string& word : words) given.push_back(word.data());
    given.push_back(nullptr);
    execv(given[0], given.data());
    _exit(127);
}

/// Starts the window with these words. It writes a byte when it has painted.
Start Run(std::vector<std::string> words) {
    words.insert(words.begin(), START_WINDOW);
    int ends[2] = {};
    if (pipe(ends) != 0) std::exit(1);
    Start start;
    pid_t child = 0;
    char byte = 0;
    start.painted = Wall([&] {
        child = fork();
        if (child == 0) Become(words, ends[1]);
        close(ends[1]);
        if (read(ends[0], &byte, 1) != 1) byte = 0;
    });
    close(ends[0]);
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    if (status != 0 || byte == 0) {
        std::fprintf(stderr, "start: the window has failed\n");
        std::exit(1);
    }
    start.cpu = Milliseconds(usage.ru_utime) + Milliseconds(usage.ru_stime);
    start.megabytes = static_cast<double>(usage.ru_maxrss) / 1024;
    return start;
}

Round Painted(const std::vector<std::string>& words) {
    return [words] { return Run(words).painted; };
}

}  // namespace

int main(int count, char** words) {
    const Screen screen;
    const std::vector<std::string> empty, plain = {"--editor"}, rich = {"--editor", RICH_SKIN},
                                          second = {"--editor", RICH_SKIN, "--stay"};
    const int code =
        Judge({{"start without a skin, to the first painting", Painted(plain), "an empty Qt window",
                Painted(empty), 1.6, "was 1.5: loading fonts, of which an empty window has none, is 11 %"},
               {"start with the rich sample, to the first painting", Painted(rich), "an empty Qt window",
                Painted(empty), 3.1,
                "was 2.5: a fifth is decoding on two processors, a seventh libraries and "
                "Qt, 7 % fonts"},
               {"processor time of that start and a second more",
                [=] { return Run(second).cpu; },
                "",
                {},
                MostCpu}},
              count, words);
    if (count == 1)
        std::printf("\nPeak memory: empty window %.1f MB, no skin %.1f MB, rich sample %.1f MB\n",
                    Run(empty).megabytes, Run(plain).megabytes, Run(rich).megabytes);
    return code;
}
