// SPDX-License-Identifier: MIT
// The pointer over a side; a point inserted; pressing and dragging a corner.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// The side on which the pointer rests, by its box and 3 pixels more; 0 for none. Counts from 1.
int LineUnderPointer(int x, int y);
/// Where the 0, 0 of a position is.
enum class Origin { Canvas, Side };
/// Inserts a point behind position `index`, at a position in pixels from the canvas or from the control of
/// side `index`. False if it could not.
bool AddShapePoint(CanvasParts& parts, int index, int x, int y, Origin origin);
/// Writes the point of that Order, moves the sides that meet there and paints the surface.
void MovePoint(CanvasParts& parts, int order, int x, int y);

void cPoint_MouseDown(CanvasParts& parts, Control& line, const Mouse& mouse);
void cPointMover_MouseDown(CanvasParts& parts, Control& corner, const Mouse& mouse);
void cPointMover_MouseMove(CanvasParts& parts, Control& corner, const Mouse& mouse);
void cPointMover_MouseUp(CanvasParts& parts, Control& corner, const Mouse& mouse);

}  // namespace ornavo
