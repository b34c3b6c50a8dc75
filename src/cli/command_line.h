// SPDX-License-Identifier: MIT
// What a command of the tool takes, as a row of a table; its usage and its parsed words are made from the
// row.
#pragma once

#include <QStringList>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"

namespace ornavo {

/// The command line is wrong; exit code 2.
class UsageError : public Failure {
public:
    explicit UsageError(std::string reason)
        : Failure(Failure::InvalidCall, "Command line", std::move(reason)) {}
};

/// The words of a command line behind the command's name.
struct Arguments {
    std::vector<std::string> operands;  // as many as the command has
    std::map<std::string, std::vector<std::string>> options;
    bool Has(const std::string& name) const { return options.contains(name); }
    /// The last one, if the option is there more than once.
    std::string Get(const std::string& name, const std::string& standard = "") const;
    std::vector<std::string> All(const std::string& name) const;
    std::string Need(const std::string& name) const;  // UsageError if it is missing
};

struct Option {
    std::string_view name;
    std::string_view value;  // what the usage calls its value; "" for a switch
    bool isNeeded = false;
    bool isRepeated = false;  // otherwise the last one counts
};

struct Command {
    std::string_view name;
    std::vector<std::string_view> operands;
    std::vector<Option> options;
    std::string_view help;  // what it does, in one paragraph
    int (*run)(const Arguments&);
    int failed = 1;  // the exit code if it can't do its work
};

/// Throws a UsageError if the words don't fit the command.
Arguments Parse(const Command& command, const QStringList& words);

/// How to call each command and what it does.
std::string UsageOf(std::span<const Command> commands);

}  // namespace ornavo
