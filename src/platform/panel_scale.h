// SPDX-License-Identifier: MIT
// How large the panels are: as large as the desktop's own text asks for.
#pragma once

#include <QFont>
#include <QSize>

class QWidget;

namespace ornavo {

/// Our face in the size of the desktop's own font, whatever the screen's dpi.
QFont PanelFont(const QFont& desktop);

/// A panel's measures are designed for 9 points at 96 dpi. They grow with the line height of its font, and
/// never shrink. Stored widths are the designed ones, so that they mean the same under every font.
class PanelScale {
public:
    explicit PanelScale(const QFont& font);
    explicit PanelScale(const QWidget& panel);
    PanelScale(int line, int designedLine) : line_(line), designedLine_(designedLine) {}

    int operator()(int designed) const;  // pixels or twips
    QSize operator()(const QSize& designed) const;
    int Designed(int shown) const;  // the way back

private:
    int line_, designedLine_;  // heights of a line, pixels
};

}  // namespace ornavo
