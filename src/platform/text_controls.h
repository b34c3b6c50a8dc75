// SPDX-License-Identifier: MIT
// A control with one line of text that can be edited.
#pragma once

#include <QPalette>

#include "base/font.h"
#include "platform/control.h"

class QLineEdit;

namespace ornavo {

/// The search box of a layout.
class TextBox : public Control {
public:
    TextBox(QWidget* parent, std::string name);

    void SetFont(const ornavo::Font& font);
    void SetForeColor(Colour colour);
    void SetBackColor(Colour colour) override;
    void SetBorderStyle(int style);  // 0 none, 1 sunken, one pixel
    void SetText(std::string_view text);
    QLineEdit& Edit() { return *edit_; }

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    bool eventFilter(QObject*, QEvent*) override;  // passes the edit's mouse events to the listener,
                                                   // and to the edit as well unless it is read-only

private:
    void Paint(QPalette::ColorRole role, Colour colour);
    void PlaceEdit();

    QLineEdit* edit_;
    ornavo::Font font_;
    int borderStyle_ = 0;
};

}  // namespace ornavo
