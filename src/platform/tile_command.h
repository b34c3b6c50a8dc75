// SPDX-License-Identifier: MIT
// The command button of the panels: a picture, a caption or both, usable by mouse, keys and screen readers.
#pragma once

#include <QIcon>

#include "platform/control.h"

namespace ornavo {

/// A button that emits Click.
class TileCommand : public Control {
    Q_OBJECT
public:
    TileCommand(QWidget* parent, std::string name, int index = 0);

    /// "&" marks the mnemonic. A screen reader tells the caption as the button's name; a button with only a
    /// picture gets its name by setAccessibleName.
    void SetCaption(const QString& caption);
    const QString& Caption() const { return caption_; }
    /// A picture file or resource, shown in a square of `size` pixels. "name@2x.png" beside it is used on
    /// high-dpi screens.
    void SetPicture(const QString& file, int size = 24);
    /// Puts the picture above the caption; by default it is to the left.
    void SetPictureAbove(bool above);
    /// Emits Click, unless the button is disabled.
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
    int mnemonic_ = 0;  // id of the grabbed shortcut; 0 for none
    bool above_ = false;
    bool over_ = false;
    Held held_ = NotHeld;
    bool inside_ = false;  // the pointer is over the held button
};

}  // namespace ornavo
