// SPDX-License-Identifier: MIT
// The controls of a row, each with the Tag that binds it.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "platform/control.h"
#include "platform/tile_command.h"

namespace ornavo {

inline constexpr Colour WindowBackground = ColourOf(0x80000005);

class RowLabel : public QLabel {
public:
    explicit RowLabel(QWidget* sheet);
    /// A heading is bold on a ground of its own; a caption that is too long for `width` pixels is narrowed,
    /// and its tool tip has what is cut all the same.
    void Show(const QString& caption, bool heading, int width);

    bool IsHeading() const { return heading_; }

    std::string Tag;

private:
    bool heading_ = false;
};

class RowText;

/// Fills its box by a dialog of the row's kind.
class RowButton : public TileCommand {
public:
    using TileCommand::TileCommand;
    int kind = 0;
    RowText* box = nullptr;
};

class RowText : public QLineEdit {
public:
    explicit RowText(QWidget* sheet);

    std::string Text() const { return text().toStdString(); }
    void SetText(std::string_view text);  // shown from its start
    bool Locked() const { return isReadOnly(); }
    void SetLocked(bool locked) { setReadOnly(locked); }
    Colour BackColor() const { return backColor_; }
    /// The text is black or white, whichever can be read. Failure 380 for what is no colour.
    void SetBackColor(Colour colour);

    /// The tool tip when it is wanted, made from the text as it then is; null for none.
    std::function<QString(std::string_view text)> Tip;
    RowButton* button = nullptr;  // that fills it; null for none
    std::string Tag;

protected:
    bool event(QEvent*) override;

private:
    Colour backColor_ = WindowBackground;
};

class RowCheck : public QCheckBox {
public:
    explicit RowCheck(QWidget* sheet);
    bool Value() const { return isChecked(); }
    void SetValue(bool value) { setChecked(value); }

    std::string Tag;

protected:
    void paintEvent(QPaintEvent*) override;  // the style's own box is higher than a row
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

/// The wheel changes it only while it has the focus.
class RowCombo : public QComboBox {
public:
    explicit RowCombo(QWidget* frame);
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);  // what lies outside of the list selects nothing

    std::string Tag;

protected:
    void wheelEvent(QWheelEvent*) override;
};

/// Clips a combo box to the height of a row.
class RowFrame : public Control {
public:
    RowFrame(QWidget* sheet, int index);
    RowCombo cboProp;
};

}  // namespace ornavo
