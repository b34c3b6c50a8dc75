// SPDX-License-Identifier: MIT
// A list of skins as tiles with picture and name. A click or Enter chooses one.
#pragma once

#include <QListWidget>
#include <filesystem>

namespace ornavo {

/// The user's skins on the welcome card.
class SkinList : public QListWidget {
    Q_OBJECT
public:
    explicit SkinList(QWidget* parent);

    /// Appends a tile, still without a picture.
    void AddSkin(const std::filesystem::path& folder);
    /// Shows the first of the skin's pictures that can be read. `row` counts from 0.
    void LoadPicture(int row);

    /// Sizes the list for this many columns and at most this height in pixels.
    void Arrange(int columns, int mostHeight);
    QSize TileSize() const;

signals:
    void Chosen(const std::string& folder);

protected:
    void keyPressEvent(QKeyEvent*) override;

private:
    void Choose(const QListWidgetItem* item);
};

}  // namespace ornavo
