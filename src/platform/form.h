// SPDX-License-Identifier: MIT
// A top-level window whose rectangle is kept in twips.
#pragma once

#include <QPoint>
#include <QWidget>
#include <string>

#include "base/geometry.h"

namespace ornavo {

/// The metrics of the old desktop, fixed so that saved rectangles mean the same everywhere (pixels).
struct ScreenMetrics {
    int SM_CYSIZE = 20, SM_CYSMCAPTION = 19, SM_CXFRAME = 4, SM_CYFRAME = 4;
};
inline constexpr ScreenMetrics screenMetrics;

inline constexpr int MostWindowPixels = 8192;  // each way, inside

enum WindowStateCode { StateNormal = 0, StateMinimised = 1, StateMaximised = 2 };

class Form : public QWidget {
public:
    Form(QWidget* owner, std::string name, Qt::WindowFlags flags);

    std::string Name;
    int ScaleWidth() const { return width(); }  // inner size, pixels
    int ScaleHeight() const { return height(); }
    /// The outer rectangle in twips: frame and title by screenMetrics. Of a maximised window the normal one.
    Rect TwipBounds() const;
    /// Moves there; brought back onto a screen when it would not be seen.
    void MoveTwips(const Rect& twips);
    /// The same with the corner in twips and the inner size in pixels, cut to what a window can have.
    void MoveInside(const Point& corner, const Size& inside);
    /// The frame's corner in pixels; of a maximised window that of the normal one.
    QPoint Corner() const { return corner_; }
    void MoveFrame(const QPoint& corner);
    int WindowState() const;
    void SetWindowState(int state);  // of a window not yet shown: the state it comes up in

protected:
    bool event(QEvent*) override;
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual bool Form_QueryUnload() { return true; }  // whether the window may close
    virtual void Form_Unload() {}                     // it closes
    void resizeEvent(QResizeEvent*) override;
    void closeEvent(QCloseEvent*) override;

private:
    void TakeCorner(bool byDesktop);
    void KeepCorner();
    QPoint corner_;  // of the frame in the normal state, as it was last seen or asked for
};

}  // namespace ornavo
