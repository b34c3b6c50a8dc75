// SPDX-License-Identifier: MIT
// A font as a skin stores it.
#pragma once

#include <memory>
#include <string>

namespace ornavo {

/// A font description. A default-constructed one is the default wherever a font is needed: Tahoma 8, no
/// attribute set.
struct Font {
    std::string Name = "Tahoma";
    double Size = 8;  // points, 1/72 inch on a 96-dpi screen
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
    bool operator==(const Font&) const = default;
};

using FontRef = std::shared_ptr<Font>;  // the model shares fonts by reference

}  // namespace ornavo
