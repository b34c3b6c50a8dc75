// SPDX-License-Identifier: MIT
// What is being composed: one target and one layout for the whole program, and what a target offers.
#pragma once

#include <QRegion>

#include "document/dbskin.h"
#include "render/placement.h"

namespace ornavo {

class LayoutHost;

/// A window that can be composed: the canvas, the preview, or the tool's window without a screen.
class CompositionTarget {
public:
    virtual ~CompositionTarget() = default;
    virtual int ScaleWidth() const = 0;  // inner size, pixels
    virtual int ScaleHeight() const = 0;
    virtual LayoutHost& host() = 0;
    virtual void ShowForm() {}                // the window comes to be seen
    virtual void ShowShapePoints() {}         // the canvas alone has corners,
    virtual void ShowGrid() {}                // and a surface of its own
    virtual void SetShape(const QRegion&) {}  // the preview alone is cut to its shape
};

extern CompositionTarget* TargetForm;
extern dbLayoutRef TargetLayout;
extern Frame TargetFrame;  // TargetWidth, TargetHeight, DesignWidth, DesignHeight
extern bool ComposeBusy;

/// Reads the target's inner size into TargetFrame.
void MeasureTarget();

}  // namespace ornavo
