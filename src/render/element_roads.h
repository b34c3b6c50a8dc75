// SPDX-License-Identifier: MIT
// Steps that a whole composition and the redraw of one element share.
#pragma once

#include "document/dblayoutelements.h"
#include "render/layout_host.h"

namespace ornavo {

/// Puts the control at its element's place and ties it to it. False where there is nothing to show: the
/// control is then nobody's.
bool Claim(Control& control, const dbLayoutElement& element);

/// What a screen reader says of the control: the element's name, and what it is.
void TellElement(Control& control, const dbLayoutElement& element);

/// A control that an element has for itself is shown before its size is known, and stays so when it has none.
bool ClaimSingle(Control& control, dbLayoutElement& element);

/// To the front, seen or not.
void Present(Control& control, bool visible);

void ShowSearchBox(dbLayoutElement& element, LayoutHost& host);
void ShowScrollframe(dbLayoutElement& element, LayoutHost& host);  // and its bar

}  // namespace ornavo
