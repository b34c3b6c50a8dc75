// SPDX-License-Identifier: MIT
// Pictures of a skin laid out on one picture or one page.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "check/finding.h"

namespace ornavo {

struct SheetTile {
    std::string caption;
    QImage picture;
};

/// Tiles under a heading.
struct SheetSection {
    std::string heading;
    std::string layout;  // its key
    std::vector<SheetTile> tiles;
};

/// All sections below each other, the tiles reduced to at most 480 x 360 pixels.
QImage SheetPicture(const std::vector<SheetSection>& sections);

/// A page of HTML that needs no other file: the pictures, and the findings beside the layout that they are
/// of.
std::string SheetPage(const std::string& skin, const std::vector<SheetSection>& sections,
                      const Findings& findings);

}  // namespace ornavo
