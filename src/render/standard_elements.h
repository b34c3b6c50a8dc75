// SPDX-License-Identifier: MIT
// The standard elements of every layout: the panel, the search box, and the scroll frame with its bar.
#pragma once

#include "document/dblayoutelements.h"
#include "render/layout_host.h"

namespace ornavo {

/// Each sets everything of its control but the place.
void SetupMainPanel(LayoutHost& host, const dbLayoutElement& element);
void SetupSearchElement(TextBox& box, const dbLayoutElement& element);
void SetupScrollElement(LayoutHost& host, dbLayoutElement& element);

/// Sets the bar of the scroll frame by the frame's element: its picture is PicOn. Without
/// UseTopLeftTransparency the element gets the bar's key colour.
void SetupScrollBar(TileButton& bar, dbLayoutElement& element);

/// Draws the panel's background picture: tiled from the top left, or stretched over the panel on black.
void DrawMainBackground(LayoutHost& host, bool stretch);

/// The bar's bounds in a frame with these bounds, in the same pixels.
Rect ScrollBarRect(const Rect& frame);

}  // namespace ornavo
