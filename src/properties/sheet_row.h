// SPDX-License-Identifier: MIT
// A sheet as data, before it has controls.
#pragma once

#include <string>
#include <vector>

#include "base/value.h"
#include "document/codes.h"

namespace ornavo {

/// A row of a sheet.
struct SheetRow {
    std::string caption;
    std::int32_t kind = KindHeading;  // PropertyKindCode; a preference of a file may have any number
    Value value;
    std::string key;  // "" for a heading
};
using Sheet = std::vector<SheetRow>;

}  // namespace ornavo
