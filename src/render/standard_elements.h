// SPDX-License-Identifier: MIT
// The three elements that every layout has: the panel, the search box, and the scroll frame with its bar.
#pragma once

#include "document/dblayoutelements.h"
#include "render/layout_host.h"

namespace ornavo {

/// Each sets up everything of its control but the place, which the control has already.
void SetupMainPanel(LayoutHost& host, const dbLayoutElement& element);
void SetupSearchElement(TextBox& box, const dbLayoutElement& element);
void SetupScrollElement(LayoutHost& host, dbLayoutElement& element);

/// The bar of the frame, by the frame's own element: its picture is PicOn. Without the rule of the top left
/// pixel the element's key colour follows the bar's.
void SetupScrollBar(TileButton& bar, dbLayoutElement& element);

/// The panel's background picture: tiled from its top left, or stretched over it on black.
void DrawMainBackground(LayoutHost& host, bool stretch);

/// The bar's place in a frame at these bounds.
Rect ScrollBarRect(const Rect& frame);

}  // namespace ornavo
