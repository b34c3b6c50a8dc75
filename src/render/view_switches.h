// SPDX-License-Identifier: MIT
// What the designer chose to see on the canvas.
#pragma once

namespace ornavo {

/// Program-wide; read from the settings at start.
struct ViewSwitches {
    int GridX = 10, GridY = 10;  // pixels
    bool SnapGrid = false;
    bool ShowLines = false, ShowPoints = true, ShowShape = true, ShapeInverted = true;
    bool ShowElements = true, ShowGrid = true;
};
extern ViewSwitches viewSwitches;

}  // namespace ornavo
