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
    bool Events = false;                      // whether Tick is raised

    int Zoom() const { return zoom_; }
    void SetZoom(int zoom);  // the next tick shows it; Failure 380 if it is none of Zooms
    void StepZoom(int by);   // along Zooms, as far as they go
    bool Frozen() const { return frozen_; }
    void SetFrozen(bool frozen);  // the last picture stays
    int Interval() const { return tmr.interval(); }
    void SetInterval(int milliseconds) { tmr.setInterval(milliseconds); }
    int BorderStyle() const { return frameShape() == NoFrame ? 0 : 1; }
    void SetBorderStyle(int style);  // 0 none, 1 a line
    int ScaleWidth() const;          // of the inside, in device pixels
    int ScaleHeight() const;
    const QImage& Picture() const { return picture_; }
    void Clear();

    QTimer tmr;  // runs while the control is seen and not frozen

signals:
    void Click();
    void DblClick();
    void MouseDown(QMouseEvent* event);
    void MouseMove(QMouseEvent* event);
    void MouseUp(QMouseEvent* event);
    void Resize();
    void Tick();
    void StateChanged();  // the zoom, or whether it is frozen

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void resizeEvent(QResizeEvent*) override;
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
    void tmr_Timer();

    PixelSource& desktop_;
    PixelSource& own_;
    int zoom_ = 2;
    int turned_ = 0;  // of the wheel, eighths of a degree not yet used
    bool frozen_ = false, busy_ = false;
    View view_;
    QImage picture_;
};

}  // namespace ornavo
