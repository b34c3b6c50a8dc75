// SPDX-License-Identifier: MIT
// The commands of the tool, a function each.
#pragma once

#include "cli/command_line.h"

namespace ornavo {

/// Prints a line on the error stream.
void Tell(const std::string& text);
/// Failure 75 if what was printed on the output can't be written.
void FlushOutput();

/// Each returns the exit code, or throws a Failure if it cannot do its work.
int Check(const Arguments&);
int CompareTwo(const Arguments&);
int Dump(const Arguments&);
int Save(const Arguments&);
int Sheet(const Arguments&);
int Place(const Arguments&);
int Render(const Arguments&);
int Recolour(const Arguments&);

}  // namespace ornavo
