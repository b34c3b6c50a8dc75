// SPDX-License-Identifier: MIT
// Gestures on the shape: pointing at a side, inserting a corner, dragging a corner.
#pragma once

#include "canvas/canvas_parts.h"
#include "platform/control.h"

namespace ornavo {

/// The position, from 1, of the side whose bounding box, widened by 3 pixels, contains the point; 0 if there
/// is none. Pixels of the canvas.
int LineUnderPointer(int x, int y);
/// Where the 0, 0 of a position is.
enum class Origin { Canvas, Side };
/// Inserts a corner after position `index`, at a position in pixels of the canvas or of the control of side
/// `index`. False if that is impossible.
bool AddShapePoint(CanvasParts& parts, int index, int x, int y, Origin origin);
/// Moves the corner with this Order to a point of the canvas in pixels, moves the sides that meet there and
/// redraws the surface.
void MovePoint(CanvasParts& parts, int order, int x, int y);

void cPoint_MouseDown(CanvasParts& parts, Control& line, const Mouse& mouse);
void cPointMover_MouseDown(CanvasParts& parts, Control& corner, const Mouse& mouse);
void cPointMover_MouseMove(CanvasParts& parts, Control& corner, const Mouse& mouse);
void cPointMover_MouseUp(CanvasParts& parts, Control& corner, const Mouse& mouse);

}  // namespace ornavo
