// SPDX-License-Identifier: MIT
// The key colour of a sample control and the one that is stored for it: each may come from the other.
#pragma once

#include <memory>

#include "platform/tile_button.h"

namespace ornavo {

/// With the rule of the top left pixel the button takes what is stored; without, what is stored follows the
/// button. `owner` is the skin or the layout in which it is stored: a button that was styled for another
/// takes what is stored too, so that no skin gets the colour of another.
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
