// SPDX-License-Identifier: MIT
// What the gestures on the canvas work with.
#pragma once

#include <functional>

#include "canvas/drag_state.h"
#include "editor/selection.h"
#include "editor/windows.h"
#include "platform/form.h"

class QTimer;

namespace ornavo {

class Anchors;
class LayoutHost;
class ShapePoints;

/// References to the parts of the main window, for gestures, keys and menus.
struct CanvasParts {
    Form& form;
    Canvas& canvas;
    LayoutHost& host;
    Anchors& anchors;
    ShapePoints& points;
    Windows& windows;
    DragState& drag;
    Selection& selection;
    QTimer& tmrShowProperties;
    std::function<void()> showGrid;       // redraws the surface
    std::function<void()> composed = {};  // called after each composition; may be empty
};

}  // namespace ornavo
