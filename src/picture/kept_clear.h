// SPDX-License-Identifier: MIT
// What of a picture stays clear when it is recoloured: the file has no transparency, but the element that
// shows it takes one of its colours for clear.
#pragma once

#include <QImage>
#include <string>

#include "document/dblayoutelements.h"
#include "pixels/clear_pixels.h"

namespace ornavo {

class KeptClear {
public:
    KeptClear() = default;  // nothing
    /// `picture` as it was decoded, 32 bits a pixel, and `flat`, the same without transparency. Nothing is
    /// kept for an element without transparency.
    KeptClear(const dbLayoutElement& element, const QImage& picture, const cDIBSection& flat);

    /// Gives what is kept its colour, in the flat picture and each time that it was recoloured.
    void Paint(cDIBSection& picture) const;
    /// A sentence without its end; "" where nothing is kept.
    std::string Told() const;

private:
    ClearPixels pixels_;
    bool isTopLeft_ = false;   // the colour is that of the top left pixel
    std::uint32_t given_ = 0;  // otherwise it is this one
};

}  // namespace ornavo
