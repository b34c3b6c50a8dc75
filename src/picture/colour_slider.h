// SPDX-License-Identifier: MIT
// A slider from 0 to 255 along a strip of colours: the one under the knob is the one that is meant.
#pragma once

#include <QSlider>

namespace ornavo {

class ColourSlider : public QSlider {
public:
    ColourSlider(const char* name, const char* says);

    /// The colour of each value, from 0 to 255.
    void SetColours(const std::function<QRgb(int value)>& colourOf);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QRect Knob() const;
    QImage strip_;  // a pixel for each value
};

/// The colour of a hue and a saturation, each 0 to 255, at medium lightness.
QRgb PureColour(int hue, int saturation);

}  // namespace ornavo
