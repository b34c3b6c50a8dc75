// SPDX-License-Identifier: MIT
#include "picture/dib_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include "pixels/cdibsection.h"

namespace ornavo {
namespace {

/// Paints a part of the picture with its top left at `at`. The picture's rows are stored bottom first, so the
/// painter is flipped.
void PaintPicture(QPainter& painter, const QPoint& at, const cDIBSection& picture, const QRect& part) {
    if (part.isEmpty()) return;
    const int bottomRow = picture.Height() - 1 - part.bottom();
    const QImage rows(picture.ScanLine(bottomRow), picture.Width(), part.height(), picture.BytesPerScanLine(),
                      QImage::Format_BGR888);
    painter.save();
    painter.translate(at.x(), at.y() + part.height());
    painter.scale(1, -1);
    painter.drawImage(QPoint(0, 0), rows, QRect(part.left(), 0, part.width(), part.height()));
    painter.restore();
}

}  // namespace

DibView::DibView(const char* name, const char* says, const cDIBSection& picture) : picture_(picture) {
    setObjectName(QLatin1String(name));
    setAccessibleName(QLatin1String(says));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setSingleStep(16);
}

void DibView::Refresh() {
    SetRanges();
    viewport()->repaint();
}

void DibView::ScrollTogether(DibView& other) {
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, other.horizontalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, other.verticalScrollBar(), &QScrollBar::setValue);
}

void DibView::SetRanges() {
    const QSize room = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, picture_.Width() - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setRange(0, std::max(0, picture_.Height() - room.height()));
    verticalScrollBar()->setPageStep(room.height());
}

void DibView::resizeEvent(QResizeEvent*) {
    SetRanges();
}

void DibView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
}

void DibView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QPoint corner(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QRect whole(-corner, QSize(picture_.Width(), picture_.Height()));
    for (const QRect& rest : QRegion(event->rect()) - whole)
        painter.fillRect(rest, palette().color(QPalette::Mid));
    const QRect seen = event->rect() & whole;
    PaintPicture(painter, seen.topLeft(), picture_, seen.translated(corner));
}

}  // namespace ornavo
