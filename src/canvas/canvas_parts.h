// SPDX-License-Identifier: MIT
// What a gesture on the canvas may touch.
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
    std::function<void()> showGrid;       // paints the surface anew
    std::function<void()> composed = {};  // after each composition, where somebody wants to hear of it
};

}  // namespace ornavo
