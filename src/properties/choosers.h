// SPDX-License-Identifier: MIT
// A row's button: a colour, a font or a picture is chosen, or a picture is edited.
#pragma once

namespace ornavo {

struct PanelParts;
class RowButton;

/// What the button's kind asks for. The keyboard is then the panel's again.
void Choose(PanelParts& parts, const RowButton& button);
/// The picture that the button's box names is edited; nothing where it names none.
void EditPicture(PanelParts& parts, const RowButton& button);

}  // namespace ornavo
