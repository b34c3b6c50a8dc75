// SPDX-License-Identifier: MIT
// What the user wants to see on the canvas.
#pragma once

namespace ornavo {

/// The view switches of the whole program; read from the settings at start.
struct ViewSwitches {
    int GridX = 10, GridY = 10;  // pixels
    bool SnapGrid = false;
    bool ShowLines = false, ShowPoints = true, ShowShape = true, ShapeInverted = true;
    bool ShowElements = true, ShowGrid = true;
};
extern ViewSwitches viewSwitches;

}  // namespace ornavo
