// SPDX-License-Identifier: MIT
// The screen about the pointer, enlarged by a whole number without smoothing, as it is at each tick.
#pragma once

#include <QFrame>
#include <QTimer>

#include "base/colour.h"
#include "magnifier/capture.h"
#include "platform/screen_pixels.h"

namespace ornavo {

class Magnify : public QFrame {
    Q_OBJECT
public:
    static constexpr int Zooms[] = {1, 2, 4, 8, 16, 32};

    /// Reads `desktop`, or where that gives nothing `own`; both outlive it.
    Magnify(QWidget* parent, PixelSource& desktop, PixelSource& own);

    Colour BackColor = ColourOf(0x8000000C);  // of what lies beyond the screens' edges

    int Zoom() const { return zoom_; }
    void SetZoom(int zoom);  // the next tick shows it; Failure 380 if it is none of Zooms
    void StepZoom(int by);   // along Zooms, as far as they go
    bool Frozen() const { return frozen_; }
    void SetFrozen(bool frozen);     // the last picture stays
    void SetBorderStyle(int style);  // 0 none, 1 a line
    int ScaleWidth() const;          // of the inside, in device pixels
    int ScaleHeight() const;

    QTimer tmr;  // runs while the control is seen and not frozen

signals:
    void StateChanged();  // the zoom, or whether it is frozen

protected:
    void wheelEvent(QWheelEvent*) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    /// All that a picture is drawn from; nothing is drawn or painted while it stays the same.
    struct View {
        QSize size;
        int zoom = 0;
        Colour background = 0;
        std::vector<Piece> pieces;
        std::vector<QImage> pixels;
        bool operator==(const View&) const = default;
    };
    bool See(PixelSource& source, View& view) const;
    void Capture();

    PixelSource& desktop_;
    PixelSource& own_;
    int zoom_ = 2;
    int turned_ = 0;  // of the wheel, eighths of a degree not yet used
    bool frozen_ = false, busy_ = false;
    View view_;
    QImage picture_;
};

}  // namespace ornavo
