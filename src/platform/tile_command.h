// SPDX-License-Identifier: MIT
// The command button: a picture, a caption or both. Works by mouse and by keys, and has a name for a screen
// reader.
#pragma once

#include <QIcon>

#include "platform/control.h"

namespace ornavo {

class TileCommand : public Control {
    Q_OBJECT
public:
    TileCommand(QWidget* parent, std::string name, int index = 0);

    /// "&" marks the mnemonic. It names the button for a screen reader too; a button that has a picture
    /// alone is named by its caller with setAccessibleName.
    void SetCaption(const QString& caption);
    const QString& Caption() const { return caption_; }
    /// A picture file or resource; that of twice the size beside it ("name@2x.png") serves fine screens.
    /// `size` is its edge in pixels.
    void SetPicture(const QString& file, int size = 24);
    /// The picture over the caption; without it, to its left.
    void SetPictureAbove(bool above);
    /// What a click does, as if it were clicked. Nothing while it is disabled.
    void PerformClick();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void Click();

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    void changeEvent(QEvent*) override;

private:
    enum Held { NotHeld, ByMouse, ByKey };
    void Hold(Held held, bool inside);
    QRect PaintPicture(QPainter& painter, const QRect& area) const;

    QString caption_;
    QIcon picture_;
    int pictureSize_ = 0;
    int mnemonic_ = 0;  // of the grabbed shortcut; 0 for none
    bool above_ = false;
    bool over_ = false;
    Held held_ = NotHeld;
    bool inside_ = false;  // held, and the pointer has not left it
};

}  // namespace ornavo
