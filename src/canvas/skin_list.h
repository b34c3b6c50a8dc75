// SPDX-License-Identifier: MIT
// Skins as tiles: each with its picture and its name, chosen by a click or by Enter.
#pragma once

#include <QListWidget>
#include <filesystem>

namespace ornavo {

class SkinList : public QListWidget {
    Q_OBJECT
public:
    explicit SkinList(QWidget* parent);

    /// A tile without a picture, at the end.
    void AddSkin(const std::filesystem::path& folder);
    /// Shows the first of the skin's pictures that can be read; the tile stays plain where there is none.
    void LoadPicture(int row);

    /// Takes the room that its tiles want in so many columns, at most so high.
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
