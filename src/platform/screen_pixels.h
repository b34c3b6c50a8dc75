// SPDX-License-Identifier: MIT
// Reads what is on the screen in device pixels: the desktop, or the program's own windows where the desktop
// does not allow that.
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <vector>

namespace ornavo {

/// Pixels that can be read, and a pointer on them. All positions are device pixels of one plane.
class PixelSource {
public:
    virtual ~PixelSource() = default;
    virtual QPoint Pointer() = 0;
    virtual std::vector<QRect> Screens() = 0;
    /// The pixels of a rectangle within the screen of this index, from 0; null if they cannot be read.
    virtual QImage Grab(int screen, const QRect& area) = 0;
};

/// All screens of the desktop.
class DesktopPixels : public PixelSource {
public:
    QPoint Pointer() override;
    std::vector<QRect> Screens() override;
    QImage Grab(int number, const QRect& area) override;
};

/// The program's window that the pointer was last seen on, as if it were the only screen. Watches the pointer
/// from the first call of Pointer on.
class OwnWindowPixels : public QObject, public PixelSource {
public:
    QPoint Pointer() override;
    std::vector<QRect> Screens() override;
    QImage Grab(int screen, const QRect& area) override;

protected:
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    QPointer<QWidget> window_;
    QPointF pointer_;  // logical pixels of the window
    bool watching_ = false;
};

}  // namespace ornavo
