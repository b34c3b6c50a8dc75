// SPDX-License-Identifier: MIT
// Steps shared by a whole composition and the redraw of a single element.
#pragma once

#include "document/dblayoutelements.h"
#include "render/layout_host.h"

namespace ornavo {

/// Moves the control to its element's place and sets its Tag to the element's key. False for an element
/// without a size: the Tag is then empty.
bool Claim(Control& control, const dbLayoutElement& element);

/// Tells a screen reader the element's name and role.
void TellElement(Control& control, const dbLayoutElement& element);

/// Claims the control of an element that has one of its own. The control is made visible first, and stays so
/// even if the element has no size.
bool ClaimSingle(Control& control, dbLayoutElement& element);

/// Brings the control to the front, visible or not.
void Present(Control& control, bool visible);

void ShowSearchBox(dbLayoutElement& element, LayoutHost& host);
void ShowScrollframe(dbLayoutElement& element, LayoutHost& host);  // and its scroll bar

}  // namespace ornavo
