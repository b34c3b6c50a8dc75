// SPDX-License-Identifier: MIT
// The picture button: a widget that shows a tile face and turns the mouse into events.
#pragma once

#include <QTimer>
#include <memory>
#include <string>

#include "platform/control.h"
#include "platform/tile_face.h"

namespace ornavo {

/// A button with a picture for each state. Its members take effect at Refresh.
class TileButton : public Control {
    Q_OBJECT
public:
    TileButton(QWidget* parent, std::string name, int index = 0);
    ~TileButton() override;

    TileState State;
    TileLayers Elements;
    PictureRef Picture, PictureOver, PictureDown;
    std::string AniPicture, AniPictureOver, AniPictureDown;  // full paths of animated GIFs; "" for none;
                                                             // they are shown instead of the plain pictures
    std::weak_ptr<const void> ColourOwner;  // the skin or layout that State.TransparentColor is from
    bool Repeats = false;                   // Repeat events while held: after 300 ms, then every 100 ms

    /// The key colour in use: with TransColorTopLeft, that of the normal picture's top left pixel.
    Colour TransparentColor() const;
    bool IsAnimatedGIF(const std::string& path) const;
    /// Repaints if state, layers, pictures or an animation's file have changed since the last call; cheap
    /// otherwise.
    void Refresh() override;
    void RefreshElements() { Refresh(); }
    void SetBackColor(Colour colour) override;
    /// Makes the control look like a new one: no picture, no layer, default state. For reusing a slot.
    void Reset();
    bool IsRunning() const;  // whether an animation is running

protected:
    void paintEvent(QPaintEvent*) override;
    void enterEvent(QEnterEvent*) override;
    void leaveEvent(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
    void resizeEvent(QResizeEvent*) override;

private:
    struct Look;
    void ShowSource();
    void TellOpaque();
    void FollowMouse(bool over, bool pressed, bool inside);

    std::unique_ptr<Look> look_;  // as last drawn, with the state of mouse and animation
};

}  // namespace ornavo
