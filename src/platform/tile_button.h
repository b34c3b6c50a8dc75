// SPDX-License-Identifier: MIT
// The picture button: a widget that shows a face and turns the mouse into events.
#pragma once

#include <QTimer>
#include <memory>
#include <string>

#include "platform/control.h"
#include "platform/tile_face.h"

namespace ornavo {

class TileButton : public Control {
    Q_OBJECT
public:
    TileButton(QWidget* parent, std::string name, int index = 0);
    ~TileButton() override;

    TileState State;      // takes effect at Refresh
    TileLayers Elements;  // the same
    PictureRef Picture, PictureOver, PictureDown;
    std::string AniPicture, AniPictureOver, AniPictureDown;  // full paths of animated GIFs; "" for none. An
                                                             // animated picture goes before the plain one
    std::weak_ptr<const void> ColourOwner;  // whose colour State.TransparentColor is; the caller's own mark
    bool Repeats = false;                   // while held: after 300 ms, then every 100 ms

    /// Reads back the colour that the control found when the top left pixel rules.
    Colour TransparentColor() const;
    bool IsAnimatedGIF(const std::string& path) const;
    /// Draws again if state, layers, pictures or size differ from what was last drawn; cheap otherwise.
    void Refresh() override;
    void RefreshElements() { Refresh(); }
    void SetBackColor(Colour colour) override;
    /// Back to what a new control shows: no picture, no layer, plain state. Called when a slot is reused.
    void Reset();
    bool IsRunning() const;  // an animation is being shown

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
    void FollowMouse(bool over, bool pressed, bool inside);

    std::unique_ptr<Look> look_;  // what was last drawn, and how it is drawn at present
};

}  // namespace ornavo
