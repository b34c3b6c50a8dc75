// SPDX-License-Identifier: MIT
#include "canvas/skin_list.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "base/paths.h"
#include "document/skin_preview.h"
#include "platform/control.h"
#include "platform/pictures.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int FolderRole = Qt::UserRole, PictureRole = Qt::UserRole + 1;
constexpr QSize ThumbnailSize = {136, 102};
constexpr int TileMargin = 8, NameGap = 4, Corner = 4;

/// The size of a tile in pixels.
QSize SizeOf(const QFontMetrics& font) {
    return ThumbnailSize + QSize(2 * TileMargin, 2 * TileMargin + NameGap + font.height());
}

/// Paints the picture, or the first letter of the name if there is none yet.
void PaintPicture(QPainter& painter, const QRect& area, const QPalette& colours, const QModelIndex& index) {
    painter.fillRect(area, colours.color(QPalette::Midlight));
    const auto picture = index.data(PictureRole).value<QPixmap>();
    if (picture.isNull()) {
        QFont letter = painter.font();
        letter.setPixelSize(area.height() / 2);
        painter.setFont(letter);
        painter.setPen(colours.color(QPalette::Mid));
        painter.drawText(area, Qt::AlignCenter, index.data(Qt::DisplayRole).toString().left(1).toUpper());
    } else {
        QRect place(QPoint(), picture.deviceIndependentSize().toSize());
        place.moveCenter(area.center());
        painter.drawPixmap(place, picture);
    }
    painter.setPen(colours.color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5));
}

/// Paints a tile.
class TileDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool chosen = option.state.testFlag(QStyle::State_HasFocus);
        const bool over = option.state.testFlag(QStyle::State_MouseOver);
        const QPalette& colours = option.palette;
        const QRect tile = option.rect.adjusted(2, 2, -2, -2);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(chosen ? QPen(colours.color(QPalette::Highlight), 2) : QPen(Qt::NoPen));
        painter->setBrush(colours.brush(QPalette::Button));
        if (chosen || over) painter->drawRoundedRect(tile, Corner, Corner);
        QRect picture(QPoint(0, tile.top() + TileMargin - 2), ThumbnailSize);
        picture.moveLeft(tile.center().x() - ThumbnailSize.width() / 2);
        const QRect name(picture.left(), picture.bottom() + 1 + NameGap, picture.width(),
                         option.fontMetrics.height());
        painter->setFont(option.font);
        PaintPicture(*painter, picture, colours, index);
        painter->setFont(option.font);
        painter->setPen(colours.color(QPalette::Text));
        painter->drawText(name, Qt::AlignCenter,
                          option.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(),
                                                        Qt::ElideRight, name.width()));
        painter->restore();
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return SizeOf(option.fontMetrics);
    }
};

}  // namespace

SkinList::SkinList(QWidget* parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("lst_Skins"));
    setAccessibleName(QStringLiteral("Your skins"));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setItemDelegate(new TileDelegate(this));
    viewport()->setAttribute(Qt::WA_Hover);
    viewport()->setAutoFillBackground(false);
    connect(this, &QListWidget::itemClicked, this, &SkinList::Choose);
}

QSize SkinList::TileSize() const {
    return SizeOf(fontMetrics());
}

void SkinList::AddSkin(const std::filesystem::path& folder) {
    auto* item = new QListWidgetItem(Shown(ToText(folder.filename())), this);
    item->setData(FolderRole, Shown(ToText(folder)));
    item->setToolTip(PlainTip(Shown(ToText(folder))));
}

void SkinList::LoadPicture(int row) {
    const qreal ratio = devicePixelRatioF();
    for (const auto& file : PreviewFiles(item(row)->data(FolderRole).toString().toStdString())) {
        const QImage picture = LoadThumbnail(file, ThumbnailSize * ratio);
        if (picture.isNull()) continue;
        QPixmap shown = QPixmap::fromImage(picture);
        shown.setDevicePixelRatio(ratio);
        item(row)->setData(PictureRole, shown);
        return;
    }
}

void SkinList::Arrange(int columns, int mostHeight) {
    const QSize tile = TileSize();
    setGridSize(tile);
    const int rows = (count() + columns - 1) / columns;
    const bool scrolls = rows * tile.height() > mostHeight;
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    // QListView needs one pixel more than its columns.
    setFixedSize(columns * tile.width() + bar + 1, std::min(rows * tile.height(), mostHeight));
}

void SkinList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return Choose(currentItem());
    QListWidget::keyPressEvent(event);
}

void SkinList::Choose(const QListWidgetItem* item) {
    if (item) emit Chosen(item->data(FolderRole).toString().toStdString());
}

}  // namespace ornavo
