// SPDX-License-Identifier: MIT
// Window sizes in words.
#pragma once

#include <string>

#include "check/size_ranges.h"

namespace ornavo {

/// "below 812 wide", "below 640 or between 700 and 812 high"; "" for all widths or heights that are checked.
std::string WordsOf(const Ranges& ranges, Axis axis);

/// Windows of these widths and these heights; "in windows of all sizes".
std::string WordsOfBoth(const Ranges& widths, const Ranges& heights);
/// Windows of these widths or these heights; "" for none.
std::string WordsOfEither(const Ranges& widths, const Ranges& heights);

/// One after the other with something in between, unless one of them is "".
std::string Joined(const std::string& one, const char* between, const std::string& other);

}  // namespace ornavo
