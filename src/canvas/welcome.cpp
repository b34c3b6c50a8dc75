// SPDX-License-Identifier: MIT
#include "canvas/welcome.h"

#include "platform/fonts.h"

namespace ornavo {
namespace {

constexpr int CardWidth = 400, CardHeight = 132;
const QColor CardColour(250, 248, 244), EdgeColour(150, 144, 136), InkColour(52, 48, 44),
    SoftInk(105, 98, 92);

struct Line {
    int top, height;
    double points;
    bool bold;
    QColor colour;
    QString text;
};

void PaintLine(QPainter& painter, const QRect& card, const Line& line) {
    QFont font = ScreenFont({.Name = "Tahoma", .Size = line.points, .Bold = line.bold});
    painter.setFont(font);
    painter.setPen(line.colour);
    const QRect area(card.left() + 16, card.top() + line.top, card.width() - 32, line.height);
    painter.drawText(area, Qt::AlignCenter,
                     QFontMetrics(font).elidedText(line.text, Qt::ElideMiddle, area.width()));
}

QString TitleOf(const std::string& skin, bool found) {
    if (skin.empty()) return QStringLiteral("No skin is open");
    return (found ? QStringLiteral("Skin \u201c%1\u201d has no layout")
                  : QStringLiteral("No skin \u201c%1\u201d was found"))
        .arg(QString::fromStdString(skin));
}

QString HintFor(bool found) {
    return found ? QStringLiteral("Add one, or open another skin, in the window \u201cSkin Project\u201d,")
                 : QStringLiteral("Open a skin or create one in the window \u201cSkin Project\u201d,");
}

}  // namespace

void PaintWelcome(QPainter& painter, const QRect& window, const std::string& skin, bool found) {
    QRect card(0, 0, CardWidth, CardHeight);
    card.moveCenter(window.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(EdgeColour);
    painter.setBrush(CardColour);
    painter.drawRoundedRect(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    const Line lines[] = {
        {18, 30, 14, true, InkColour, TitleOf(skin, found)},
        {58, 20, 9, false, InkColour, HintFor(found)},
        {78, 20, 9, false, InkColour, QStringLiteral("or drop a skin\u2019s folder here.")},
        {102, 18, 8, false, SoftInk, QStringLiteral("Sample skins: Aurora, Classic")},
    };
    for (const Line& line : lines) PaintLine(painter, card, line);
}

}  // namespace ornavo
