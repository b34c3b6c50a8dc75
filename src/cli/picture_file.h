// SPDX-License-Identifier: MIT
// Pictures of layouts and their files.
#pragma once

#include <QImage>
#include <string>

#include "base/geometry.h"
#include "cli/commands.h"

namespace ornavo {

/// The size of --size, otherwise the current skin's, in pixels. A skin larger than a window can be is reduced
/// to that size, with a message. Failure 5 if the skin has no size.
Size SizeToDraw(const Arguments& arguments);

/// Both throw Failure 75 if the file can't be written.
void WritePng(const QImage& picture, const std::string& name);
void WriteText(const std::string& text, const std::string& name);

}  // namespace ornavo
