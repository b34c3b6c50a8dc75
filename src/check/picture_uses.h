// SPDX-License-Identifier: MIT
// The places of a skin that name pictures.
#pragma once

#include <string>
#include <vector>

#include "check/finding.h"
#include "document/dbskin.h"

namespace ornavo {

/// A place that names a picture.
struct PictureUse {
    FindingPlace place;
    std::string given;           // the name, never ""
    const void* owner;           // the element or the preference
    dbLayoutElementRef element;  // null for a preference
};

/// In the order of the file.
std::vector<PictureUse> PictureUses(const dbSkin& skin);

}  // namespace ornavo
