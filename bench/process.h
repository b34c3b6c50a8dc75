// SPDX-License-Identifier: MIT
// Whole processes as work to measure.
#pragma once
#include <string>
#include <vector>

namespace ornavo::bench {

/// Runs the program that is the first of these words, and without its output. Gives the milliseconds of CPU
/// time from its start to its end. Ends this program if it fails.
double CpuOfProcess(std::vector<std::string> words);

}  // namespace ornavo::bench
