// SPDX-License-Identifier: MIT
// A row before it has controls: what a sheet is made of.
#pragma once

#include <string>
#include <vector>

#include "base/value.h"
#include "document/codes.h"

namespace ornavo {

struct SheetRow {
    std::string caption;
    std::int32_t kind = KindHeading;  // PropertyKindCode; a preference of a file may hold any number
    Value value;
    std::string key;  // "" for a heading
};
using Sheet = std::vector<SheetRow>;

}  // namespace ornavo
