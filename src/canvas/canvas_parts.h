// SPDX-License-Identifier: MIT
// What a gesture on the canvas may touch, and the state of a drag.
#pragma once

#include <functional>

#include "editor/windows.h"
#include "platform/form.h"

class QTimer;

namespace ornavo {

class Anchors;
class LayoutHost;
class ShapePoints;

enum DragKindCode { DragNone, DragElement, DragMain, DragInfo, DragAnchor, DragSearchBox, DragScrollframe };
inline constexpr int DragCorner = DragInfo;  // a corner of the shape shares the number of an info element

struct DragState {
    bool MouseIsDown = false;
    bool IsPlacing = false;    // code moves controls; mouse handlers that honour it do nothing
    int DownX = 0, DownY = 0;  // where the press was, in the pressed control's pixels
    int DragKind = DragNone;
};

struct CanvasParts {
    Form& form;
    Canvas& canvas;
    LayoutHost& host;
    Anchors& anchors;
    ShapePoints& points;
    Windows& windows;
    DragState& drag;
    QTimer& tmrShowProperties;
    std::function<void()> showGrid;       // paints the surface anew
    std::function<void()> composed = {};  // after each composition, where somebody wants to hear of it
};

}  // namespace ornavo
