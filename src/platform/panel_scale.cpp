// SPDX-License-Identifier: MIT
#include "platform/panel_scale.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>
#include <limits>

#include "platform/fonts.h"

namespace ornavo {
namespace {

constexpr double DesignedPoints = 9, PointsPerPixel = 72.0 / 96.0;

int LineHeight(const QFont& font) {
    return QFontMetrics(font).height();
}

int Ratio(int length, int numerator, int denominator) {
    const double wanted = static_cast<double>(length) * numerator / denominator;
    return static_cast<int>(std::clamp<double>(std::round(wanted), std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

}  // namespace

QFont PanelFont(const QFont& desktop) {
    return ScreenFont({.Size = QFontInfo(desktop).pixelSize() * PointsPerPixel});
}

PanelScale::PanelScale(const QFont& font)
    : line_(LineHeight(font)), designedLine_(LineHeight(ScreenFont({.Size = DesignedPoints}))) {
    line_ = std::max(line_, designedLine_);
}

PanelScale::PanelScale(const QWidget& panel) : PanelScale(panel.font()) {}

int PanelScale::operator()(int designed) const {
    return Ratio(designed, line_, designedLine_);
}

QSize PanelScale::operator()(const QSize& designed) const {
    return {(*this)(designed.width()), (*this)(designed.height())};
}

int PanelScale::Designed(int shown) const {
    return Ratio(shown, designedLine_, line_);
}

}  // namespace ornavo
