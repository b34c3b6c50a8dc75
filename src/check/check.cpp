// SPDX-License-Identifier: MIT
#include "check/check.h"

#include "base/files.h"
#include "base/lookup.h"
#include "check/file_lines.h"

namespace ornavo {

Findings CheckSkin(const dbSkin& skin) {
    const LookupScope names;
    const LoadedSkin loaded(skin, ReadFile(skin.SkinFile()));
    Findings findings = CheckLines(loaded);
    SortBySeverity(findings);
    return findings;
}

}  // namespace ornavo
