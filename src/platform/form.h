// SPDX-License-Identifier: MIT
// A top-level window whose rectangle is stored in twips.
#pragma once

#include <QPoint>
#include <QWidget>
#include <string>

#include "base/geometry.h"

namespace ornavo {

/// Frame and title sizes of a classic desktop in pixels, fixed so that saved rectangles mean the same
/// everywhere.
struct ScreenMetrics {
    int SM_CYSIZE = 20, SM_CYSMCAPTION = 19, SM_CXFRAME = 4, SM_CYFRAME = 4;
};
inline constexpr ScreenMetrics screenMetrics;

inline constexpr int MostWindowPixels = 8192;  // greatest inner width and height

enum WindowStateCode { StateNormal = 0, StateMinimised = 1, StateMaximised = 2 };

/// The base class of the program's windows. It keeps the frame's position and calls the handlers below.
class Form : public QWidget {
public:
    Form(QWidget* owner, std::string name, Qt::WindowFlags flags);

    std::string Name;
    int ScaleWidth() const { return width(); }  // inner size, pixels
    int ScaleHeight() const { return height(); }
    /// The outer rectangle in twips, with frame and title by screenMetrics. For a maximised window, its
    /// normal one.
    Rect TwipBounds() const;
    /// Moves the window there; onto the first screen if its title would otherwise be out of reach.
    void MoveTwips(const Rect& twips);
    /// As MoveTwips, with the corner in twips and the inner size in pixels, limited to 1 to MostWindowPixels.
    void MoveInside(const Point& corner, const Size& inside);
    /// The frame's corner in pixels; for a maximised window, its normal one.
    QPoint Corner() const { return corner_; }
    void MoveFrame(const QPoint& corner);
    int WindowState() const;         // WindowStateCode
    void SetWindowState(int state);  // of a hidden window: the state in which it will be shown

protected:
    bool event(QEvent*) override;
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual bool Form_QueryUnload() { return true; }  // whether the window may close
    virtual void Form_Unload() {}                     // the window is closing
    void resizeEvent(QResizeEvent*) override;
    void closeEvent(QCloseEvent*) override;

private:
    void TakeCorner(bool byDesktop);
    void KeepCorner();
    QPoint corner_;  // of the frame in the normal state, as last seen or set
};

}  // namespace ornavo
