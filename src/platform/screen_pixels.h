// SPDX-License-Identifier: MIT
// Reading what is on the screen, in device pixels: the desktop's, or where the desktop refuses, that of the
// program's own windows.
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <vector>

namespace ornavo {

/// Something with a pointer on it. All places are device pixels of one plane.
class PixelSource {
public:
    virtual ~PixelSource() = default;
    virtual QPoint Pointer() = 0;
    virtual std::vector<QRect> Screens() = 0;
    /// The pixels of a rectangle within the screen of that number; null where they can't be had.
    virtual QImage Grab(int screen, const QRect& area) = 0;
};

/// All screens of the desktop.
class DesktopPixels : public PixelSource {
public:
    QPoint Pointer() override;
    std::vector<QRect> Screens() override;
    QImage Grab(int number, const QRect& area) override;
};

/// The one of our windows that the pointer was last seen on, as if it were the only screen. The pointer is
/// watched from the first question on.
class OwnWindowPixels : public QObject, public PixelSource {
public:
    QPoint Pointer() override;
    std::vector<QRect> Screens() override;
    QImage Grab(int screen, const QRect& area) override;

protected:
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    QPointer<QWidget> window_;
    QPointF pointer_;  // pixels of the window, not of the device
    bool watching_ = false;
};

}  // namespace ornavo
