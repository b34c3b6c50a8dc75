// SPDX-License-Identifier: MIT
// A function for each command of the tool.
#pragma once

#include <map>
#include <string>

#include "base/failure.h"

namespace ornavo {

/// The words of the command line were wrong; exit 2.
class UsageError : public Failure {
public:
    explicit UsageError(std::string reason)
        : Failure(Failure::InvalidCall, "Command line", std::move(reason)) {}
};

struct Arguments {
    std::string skin;    // or the picture to read
    std::string target;  // the picture to write
    std::map<std::string, std::string> options;
    bool Has(const std::string& name) const { return options.contains(name); }
    std::string Get(const std::string& name, const std::string& standard = "") const;
    std::string Need(const std::string& name) const;  // UsageError if it is not there
};

/// A line on the error stream.
void Tell(const std::string& text);

/// Each returns the exit code and throws a Failure when it can't do its work.
int Dump(const Arguments&);
int Save(const Arguments&);
int Place(const Arguments&);
int Render(const Arguments&);
int Recolour(const Arguments&);

}  // namespace ornavo
