// SPDX-License-Identifier: MIT
// What an empty canvas says in its middle: how to begin, and the user's own skins to choose from.
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

class WelcomeCard : public QFrame {
    Q_OBJECT
public:
    /// Hidden, in front of what the canvas has so far.
    WelcomeCard(QWidget& canvas, Windows& windows);

    /// `skin`: the name of the one that was asked for, "" for none. It was found and has no layout, or
    /// wasn't. The user's skins come once the card has been painted, unless one is open.
    void Show(const std::string& skin, bool found);
    /// Hidden again, and no more skins are looked for.
    void Leave();
    /// In the middle of the canvas, as large as its skins want and the canvas allows.
    void Place();

    SkinList lst_Skins;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void Fill();  // one step of it

    QWidget& canvas_;
    Windows& windows_;
    QLabel lbl_Title, lbl_Hint;
    QTimer tmrFill;        // 0 ms: a step in each turn of the loop
    bool wanted_ = false;  // the skins, from the next painting on
    std::optional<SkinShelf> shelf_;
    int filled_ = 0;  // tiles that have their picture
};

}  // namespace ornavo
