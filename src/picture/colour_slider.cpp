// SPDX-License-Identifier: MIT
#include "picture/colour_slider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "pixels/colour_table.h"
#include "pixels/mhlsrgb.h"

namespace ornavo {
namespace {

constexpr int Last = 255, LargeChange = 8, InitialValue = 100;
constexpr int Height = 24, StripHeight = 12, KnobWidth = 11, KnobHeight = 20;  // pixels

}  // namespace

QRgb PureColour(int hue, int saturation) {
    std::int32_t red, green, blue;
    HLSToRGB(TargetHue(hue), TargetSaturation(saturation), 0.5f, red, green, blue);
    return qRgb(red, green, blue);
}

ColourSlider::ColourSlider(const char* name, const char* says)
    : QSlider(Qt::Horizontal), strip_(Last + 1, 1, QImage::Format_RGB32) {
    strip_.fill(Qt::gray);
    setObjectName(QLatin1String(name));
    setAccessibleName(QLatin1String(says));
    setRange(0, Last);
    setPageStep(LargeChange);
    setValue(InitialValue);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColourSlider::SetColours(const std::function<QRgb(int value)>& colourOf) {
    auto* colours = reinterpret_cast<QRgb*>(strip_.scanLine(0));
    for (int value = 0; value <= Last; ++value) colours[value] = colourOf(value);
    update();
}

QSize ColourSlider::sizeHint() const {
    return {Last + 1 + KnobWidth, Height};
}

QSize ColourSlider::minimumSizeHint() const {
    return {120, Height};
}

/// The knob's place, where QSlider has its handle but in the size of this class.
QRect ColourSlider::Knob() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    QRect knob(0, 0, KnobWidth, KnobHeight);
    knob.moveCenter({handle.center().x(), rect().center().y()});
    return knob;
}

void ColourSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
    QRect strip = rect().adjusted(handle / 2, 0, -handle / 2, 0);
    strip.setTop(rect().center().y() - StripHeight / 2);
    strip.setHeight(StripHeight);
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(strip, strip_);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(strip.adjusted(0, 0, -1, -1));

    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF knob = QRectF(Knob()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                              : QPen(palette().color(QPalette::Shadow), 1));
    painter.setBrush(palette().color(QPalette::Light));
    painter.drawRoundedRect(knob, 3, 3);
    const QRectF colour = knob.adjusted(3, 4, -3, -4);
    painter.fillRect(colour, QColor(strip_.pixel(value(), 0)));
}

}  // namespace ornavo
