// SPDX-License-Identifier: MIT
// A screen of its own for a bench, as users have one: an X server and a window manager.
#pragma once
#include <sys/types.h>

#include <filesystem>

namespace ornavo::bench {

/// Starts the screen, with an empty home, and names it in this process's environment for Qt and for the
/// programs that the process starts.
class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

private:
    std::filesystem::path home_;
    pid_t server_ = 0, manager_ = 0;
};

}  // namespace ornavo::bench
