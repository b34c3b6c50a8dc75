// SPDX-License-Identifier: MIT
// A text without a background of its own.
#pragma once

#include <string>

#include "base/font.h"
#include "platform/alignment.h"
#include "platform/control.h"

namespace ornavo {

/// A text on its parent. The members take effect at Refresh.
class Label : public Control {
public:
    Label(QWidget* parent, std::string name, int index = 0);

    std::string Caption;  // lines end in CR LF; long lines are wrapped unless AutoSize
    ornavo::Font Font;
    Colour ForeColor = 0;
    int Alignment = LeftAligned;  // AlignmentCode
    bool AutoSize = false;        // the control gets the size of the text, whose lines are not wrapped

    void Refresh() override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    /// Everything that the painting depends on.
    struct Look {
        QString text;
        QFont font;
        Colour colour = 0;
        int flags = 0;
        bool operator==(const Look&) const = default;
    };
    Look look_;  // as last drawn
};

}  // namespace ornavo
