// SPDX-License-Identifier: MIT
// Exchanges the key colour between a sample control and its stored value.
#pragma once

#include <memory>

#include "platform/tile_button.h"

namespace ornavo {

/// With isTopLeft the button takes the stored colour; otherwise the button's colour is stored. `owner` is the
/// skin or layout that stores it. A button last styled for another owner takes the stored colour in any case,
/// so that no skin gets the colour of another.
template <class Stored>
void ExchangeTransparentColor(TileButton& button, bool isTopLeft, const std::shared_ptr<const void>& owner,
                              Colour stored, Stored&& store) {
    const bool isKnown = owner && button.ColourOwner.lock() == owner;
    const bool isStored = isTopLeft || !isKnown;
    button.State.TransparentColor = isStored ? stored : button.TransparentColor();
    if (!isStored) store(button.State.TransparentColor);
    button.ColourOwner = owner;
}

}  // namespace ornavo
