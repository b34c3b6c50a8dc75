// SPDX-License-Identifier: MIT
// A slider over a strip of colours; the colour under the knob is the chosen one.
#pragma once

#include <QSlider>

namespace ornavo {

/// A slider from 0 to 255.
class ColourSlider : public QSlider {
public:
    ColourSlider(const char* name, const char* says);

    /// Sets the colour of each value, 0 to 255.
    void SetColours(const std::function<QRgb(int value)>& colourOf);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QRect Knob() const;
    QImage strip_;  // one pixel per value
};

/// The colour of a hue and saturation, each 0 to 255, at medium lightness.
QRgb PureColour(int hue, int saturation);

}  // namespace ornavo
