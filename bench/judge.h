// SPDX-License-Identifier: MIT
// Measurements beside a peer, judged against their goals.
#pragma once
#include <functional>
#include <string>
#include <vector>

namespace ornavo::bench {

/// One round of some work. It gives the milliseconds of the part that counts, or another measure.
using Round = std::function<double()>;

/// A row of the table: our work beside a peer's in the same run.
struct Row {
    std::string work;  // of the editor, in words
    Round here;
    std::string beside;      // the peer's name
    Round peer;              // without one, `goal` is in milliseconds
    double goal = 0;         // the ratio at most, or 0: it is only told
    std::string limit = "";  // why the goal wasn't reached, if a profile shows a limit: `goal` is that limit
    std::string unit = "ms";
};

/// The milliseconds that the processor spent on the work, in all threads of this process.
double Cpu(const std::function<void()>& work);

/// The milliseconds that went by during the work.
double Wall(const std::function<void()>& work);

/// Measures each row, its two sides by turns, and prints it as a row of a Markdown table: work, median, the
/// peer's median, ratio, goal, met or missed. A row that misses its goal by more than a tenth is measured up
/// to three times. Gives the exit code: 1 if one has missed three times. Goals in milliseconds count for the
/// exit code only if the environment has BENCH_ABSOLUTE, because they hold for one machine. The first word
/// after the program's name, if any, selects the rows whose work contains it.
int Judge(const std::vector<Row>& rows, int count, char** words);

}  // namespace ornavo::bench
