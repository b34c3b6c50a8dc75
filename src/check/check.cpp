// SPDX-License-Identifier: MIT
#include "check/check.h"

#include <algorithm>
#include <iterator>

#include "base/lookup.h"
#include "check/file_lines.h"
#include "check/pictures_check.h"
#include "check/sizes_check.h"
#include "check/targets_check.h"
#include "check/texts_check.h"
#include "check/use_check.h"

namespace ornavo {

Findings CheckSkin(const dbSkin& skin) {
    const LookupScope names;
    const std::string name = skin.OldSkinName.empty() ? skin.SkinName : skin.OldSkinName;
    const LoadedSkin loaded(skin.BasePath(), name);
    Findings findings = CheckLines(loaded);
    std::ranges::move(CheckPictures(loaded), std::back_inserter(findings));
    for (const auto part : {CheckUse, CheckSizes, CheckTargets, CheckTexts})
        std::ranges::move(part(loaded), std::back_inserter(findings));
    SortBySeverity(findings);
    return findings;
}

}  // namespace ornavo
