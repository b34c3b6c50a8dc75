// SPDX-License-Identifier: MIT
// The pixels that stay transparent in a recoloured picture: the file has no transparency, but its element has
// a key colour.
#pragma once

#include <QImage>
#include <string>

#include "document/dblayoutelements.h"
#include "pixels/clear_pixels.h"

namespace ornavo {

/// The transparent pixels of a picture and the key colour they get.
class KeptClear {
public:
    KeptClear() = default;  // keeps nothing
    /// `picture` as decoded, with 32 bits a pixel; `flat` is the same without transparency. Keeps nothing for
    /// an element without transparency.
    KeptClear(const dbLayoutElement& element, const QImage& picture, const cDIBSection& flat);

    /// Gives the transparent pixels the key colour; call for the flat picture and after each recolouring.
    void Paint(cDIBSection& picture) const;
    /// A sentence about it, without the full stop; "" if nothing is kept.
    std::string Told() const;

private:
    ClearPixels pixels_;
    bool isTopLeft_ = false;   // the key colour is that of the top left pixel
    std::uint32_t given_ = 0;  // the key colour otherwise, 0x00RRGGBB
};

}  // namespace ornavo
