// SPDX-License-Identifier: MIT
// The small pictures of the sample panel, drawn for it and part of the program.
#pragma once

#include <string_view>

#include "platform/pictures.h"

namespace ornavo {

/// Pictures by key without regard to case: stars, marks of a song, kinds of lists. Each is read on first use.
class ImageList {
public:
    PictureRef Item(std::string_view key) const;  // Failure 9 where there is no such picture
};

/// The picture that stands for an album's.
PictureRef SampleAlbum();

}  // namespace ornavo
