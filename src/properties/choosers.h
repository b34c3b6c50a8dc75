// SPDX-License-Identifier: MIT
// The dialogs behind a row's buttons: choosing a colour, a font or a picture, and editing a picture.
#pragma once

namespace ornavo {

struct PanelParts;
class RowButton;

/// Opens the dialog for the button's kind. Afterwards the panel has the keyboard focus.
void Choose(PanelParts& parts, const RowButton& button);
/// Opens the picture editor on the picture in the button's box; does nothing if the box is blank.
void EditPicture(PanelParts& parts, const RowButton& button);

}  // namespace ornavo
