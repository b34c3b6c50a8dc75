// SPDX-License-Identifier: MIT
#include "platform/label.h"

#include <QFontMetrics>
#include <QPainter>

#include "platform/fonts.h"

namespace ornavo {
namespace {

int FlagsOf(const Label& label) {
    const int across = label.Alignment == RightAligned ? Qt::AlignRight
                       : label.Alignment == Centred    ? Qt::AlignHCenter
                                                       : Qt::AlignLeft;
    return across | Qt::AlignTop | (label.AutoSize ? 0 : Qt::TextWordWrap);
}

}  // namespace

Label::Label(QWidget* parent, std::string name, int index) : Control(parent, std::move(name), index) {}

void Label::Refresh() {
    Look look = {ShownText(Font, Caption).remove('\r'), ScreenFont(Font), ForeColor, FlagsOf(*this)};
    if (look == look_) return;
    look_ = std::move(look);
    if (AutoSize) {
        const QSize text = QFontMetrics(look_.font).size(0, look_.text);
        const Rect now = Bounds();
        Move({now.left, now.top, text.width(), text.height()});
    }
    update();
}

void Label::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(look_.font);
    painter.setPen(ScreenColour(look_.colour));
    painter.drawText(rect(), look_.flags, look_.text);
}

}  // namespace ornavo
