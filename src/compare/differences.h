// SPDX-License-Identifier: MIT
// What two skins differ in, as data and in words.
#pragma once

#include <string>
#include <vector>

#include "base/value.h"
#include "document/dbskin.h"

namespace ornavo {

/// A thing that only one of two skins has, that has another place in their order, or a field with another
/// value.
struct Difference {
    enum Kind { Added, Removed, Moved, Changed };
    Kind kind;
    std::string layout;   // its key; "" for a preference and the skin itself
    std::string item;     // the key of an element or a preference, "corner 3", or "" for the layout or skin
    std::string field;    // "" unless Changed; of a font "Font.Size"
    Value before, after;  // of a change
};
using Differences = std::vector<Difference>;

/// From the first skin to the second. Things are the same that have the same key without regard to case, and
/// corners that have the same order. Names of pictures are compared as texts, and skins that are called like
/// their folders have no name.
Differences CompareSkins(const dbSkin& before, const dbSkin& after);

std::string_view NameOf(Difference::Kind kind);  // "added"
/// A line without its end: "Standard, Play: Caption was "Go", is "Play"".
std::string WordsOf(const Difference& difference);

}  // namespace ornavo
