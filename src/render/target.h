// SPDX-License-Identifier: MIT
// What is being composed: the one target and layout of the whole program.
#pragma once

#include <QRegion>

#include "document/dbskin.h"
#include "render/placement.h"

namespace ornavo {

class LayoutHost;

/// A window that can be composed: the canvas, the preview, or the invisible window of the command-line tool.
class CompositionTarget {
public:
    virtual ~CompositionTarget() = default;
    virtual int ScaleWidth() const = 0;  // inner size, pixels
    virtual int ScaleHeight() const = 0;
    virtual LayoutHost& host() = 0;
    virtual void ShowForm() {}                // makes the window visible
    virtual void ShowShapePoints() {}         // only the canvas shows corners
    virtual void ShowGrid() {}                // and has a surface
    virtual void SetShape(const QRegion&) {}  // only the preview is cut to the shape
};

extern CompositionTarget* TargetForm;
extern dbLayoutRef TargetLayout;
extern Frame TargetFrame;
extern bool ComposeBusy;

/// Reads the target's inner size into TargetFrame.
void MeasureTarget();

}  // namespace ornavo
