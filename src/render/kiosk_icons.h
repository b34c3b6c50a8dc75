// SPDX-License-Identifier: MIT
// The small pictures of the sample panel, which are resources of the program.
#pragma once

#include <string_view>

#include "platform/pictures.h"

namespace ornavo {

/// Pictures by key, without regard to case: stars, marks of a song, kinds of lists. Each is read on first
/// use.
class ImageList {
public:
    PictureRef Item(std::string_view key) const;  // Failure 9 if there is no such picture
};

/// The sample of an album's picture.
PictureRef SampleAlbum();

}  // namespace ornavo
