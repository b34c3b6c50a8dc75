// SPDX-License-Identifier: MIT
// The plain record of a font, as a skin stores it.
#pragma once

#include <memory>
#include <string>

namespace ornavo {

/// A fresh record is the default of every place that needs a font: Tahoma 8, no attribute set.
struct Font {
    std::string Name = "Tahoma";
    double Size = 8;  // points of 1/72 inch on a 96-dpi screen
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
    bool operator==(const Font&) const = default;
};

using FontRef = std::shared_ptr<Font>;  // fonts of the model are shared by reference

}  // namespace ornavo
