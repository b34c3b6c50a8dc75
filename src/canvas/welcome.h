// SPDX-License-Identifier: MIT
// The card on an empty canvas: how to begin, and the user's skins to choose from.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <optional>
#include <string>

#include "canvas/skin_list.h"
#include "canvas/skin_shelf.h"

namespace ornavo {

class Windows;

/// The card in the middle of the canvas. The user's skins are looked for after its first painting.
class WelcomeCard : public QFrame {
    Q_OBJECT
public:
    /// Hidden at first; in front of the canvas's present children.
    WelcomeCard(QWidget& canvas, Windows& windows);

    /// Shows the card. `skin` is the name of the skin that was asked for, "" for none; `found` tells whether
    /// it exists, and then it has no layout. The user's skins are listed after the next painting, unless
    /// `skin` was found.
    void Show(const std::string& skin, bool found);
    /// Hides the card and stops looking for skins.
    void Leave();
    /// Centres the card on the canvas, as large as its skins need and the canvas allows.
    void Place();

    SkinList lst_Skins;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void Fill();  // one step of listing the skins

    QWidget& canvas_;
    Windows& windows_;
    QLabel lbl_Title, lbl_Hint;
    QTimer tmrFill;        // 0 ms: one step in each turn of the event loop
    bool wanted_ = false;  // whether the next painting starts listing the skins
    std::optional<SkinShelf> shelf_;
    int filled_ = 0;  // the number of tiles whose picture has been looked for
};

}  // namespace ornavo
