// SPDX-License-Identifier: MIT
// The control that enlarges the screen around the pointer.
#pragma once

#include <QFrame>
#include <QTimer>

#include "base/colour.h"
#include "magnifier/capture.h"
#include "platform/screen_pixels.h"

namespace ornavo {

/// Shows the screen around the pointer at each tick of its timer, enlarged by a whole number without
/// smoothing.
class Magnify : public QFrame {
    Q_OBJECT
public:
    static constexpr int Zooms[] = {1, 2, 4, 8, 16, 32};

    /// Reads `desktop`, or `own` if the desktop cannot be read. Both must outlive the control.
    Magnify(QWidget* parent, PixelSource& desktop, PixelSource& own);

    Colour BackColor = ColourOf(0x8000000C);  // beyond the screens' edges

    int Zoom() const { return zoom_; }
    void SetZoom(int zoom);  // takes effect at the next tick; Failure 380 if not in Zooms
    void StepZoom(int by);   // by so many places in Zooms, limited to its ends
    bool Frozen() const { return frozen_; }
    void SetFrozen(bool frozen);     // frozen: keeps the last picture
    void SetBorderStyle(int style);  // 0 none, 1 a line
    int ScaleWidth() const;          // inner size in device pixels
    int ScaleHeight() const;

    QTimer tmr;  // runs while the control is visible and not frozen

signals:
    void StateChanged();  // zoom or frozen has changed

protected:
    void wheelEvent(QWheelEvent*) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    /// Everything that the picture depends on. Nothing is drawn while it stays equal.
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
    int turned_ = 0;  // eighths of a degree that the wheel has turned since the last step
    bool frozen_ = false, busy_ = false;
    View view_;
    QImage picture_;
};

}  // namespace ornavo
