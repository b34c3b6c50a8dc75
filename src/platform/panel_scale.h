// SPDX-License-Identifier: MIT
// The size of the panels, which follows the size of the desktop's text.
#pragma once

#include <QFont>
#include <QSize>

class QWidget;

namespace ornavo {

/// The program's face in the size of the desktop's font, whatever the screen's dpi.
QFont PanelFont(const QFont& desktop);

/// Scales a panel's measures, which are designed for 9 points at 96 dpi, by the line height of its font;
/// never below the designed size. Stored widths are designed ones, so that they mean the same with every
/// font.
class PanelScale {
public:
    explicit PanelScale(const QFont& font);
    explicit PanelScale(const QWidget& panel);
    PanelScale(int line, int designedLine) : line_(line), designedLine_(designedLine) {}

    int operator()(int designed) const;  // pixels or twips
    QSize operator()(const QSize& designed) const;
    int Designed(int shown) const;  // the inverse

private:
    int line_, designedLine_;  // heights of a line, pixels
};

}  // namespace ornavo
