// SPDX-License-Identifier: MIT
// A text that lies on its parent without a ground of its own.
#pragma once

#include <string>

#include "base/font.h"
#include "platform/alignment.h"
#include "platform/control.h"

namespace ornavo {

class Label : public Control {
public:
    Label(QWidget* parent, std::string name, int index = 0);

    std::string Caption;  // lines end in CR LF; a line too long for the label goes on below. All of these
                          // take effect at Refresh
    ornavo::Font Font;
    Colour ForeColor = 0;
    int Alignment = LeftAligned;  // AlignmentCode
    bool AutoSize = false;        // as large as the text, whose lines then are not broken

    void Refresh() override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    struct Look {
        QString text;
        QFont font;
        Colour colour = 0;
        int flags = 0;
        bool operator==(const Look&) const = default;
    };
    Look look_;  // what was last drawn
};

}  // namespace ornavo
