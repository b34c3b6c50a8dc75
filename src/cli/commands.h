// SPDX-License-Identifier: MIT
// The commands of the tool, a function each.
#pragma once

#include <map>
#include <string>

#include "base/failure.h"

namespace ornavo {

/// The command line is wrong; exit code 2.
class UsageError : public Failure {
public:
    explicit UsageError(std::string reason)
        : Failure(Failure::InvalidCall, "Command line", std::move(reason)) {}
};

/// A parsed command line.
struct Arguments {
    std::string skin;    // for recolour, the picture to read
    std::string target;  // for recolour, the picture to write
    std::map<std::string, std::string> options;
    bool Has(const std::string& name) const { return options.contains(name); }
    std::string Get(const std::string& name, const std::string& standard = "") const;
    std::string Need(const std::string& name) const;  // UsageError if it is missing
};

/// Prints a line on the error stream.
void Tell(const std::string& text);

/// Each returns the exit code, or throws a Failure if it cannot do its work.
int Dump(const Arguments&);
int Save(const Arguments&);
int Place(const Arguments&);
int Render(const Arguments&);
int Recolour(const Arguments&);

}  // namespace ornavo
