// SPDX-License-Identifier: MIT
// What findings call an element.
#pragma once

#include <string>

#include "check/finding.h"
#include "document/dblayoutelements.h"

namespace ornavo {

/// Its name, or its key if it has none, in quotes.
inline std::string QuotedName(const dbLayoutElement& element) {
    return Quoted(element.ElementName.empty() ? element.Key : element.ElementName);
}

}  // namespace ornavo
