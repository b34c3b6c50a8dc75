// SPDX-License-Identifier: MIT
// The controls of a row, each with the Tag that binds it to the model.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "platform/control.h"
#include "platform/tile_command.h"

namespace ornavo {

inline constexpr Colour WindowBackground = ColourOf(0x80000005);

/// The caption of a row.
class RowLabel : public QLabel {
public:
    explicit RowLabel(QWidget* sheet);
    /// A heading is bold and has its own background. A caption wider than `width` pixels is condensed; if it
    /// is still too wide, its tool tip has the whole text.
    void Show(const QString& caption, bool heading, int width);

    bool IsHeading() const { return heading_; }

    std::string Tag;

private:
    bool heading_ = false;
};

class RowText;

/// Opens a dialog that fills its text box.
class RowButton : public TileCommand {
public:
    using TileCommand::TileCommand;
    int kind = 0;
    RowText* box = nullptr;
};

/// The text box of a row.
class RowText : public QLineEdit {
public:
    explicit RowText(QWidget* sheet);

    std::string Text() const { return text().toStdString(); }
    void SetText(std::string_view text);  // and scrolls to the start
    bool Locked() const { return isReadOnly(); }
    void SetLocked(bool locked) { setReadOnly(locked); }
    Colour BackColor() const { return backColor_; }
    /// Also makes the text black or white, whichever is readable. Failure 380 for an invalid colour.
    void SetBackColor(Colour colour);

    /// Makes the tool tip from the text at the time it is shown; null for no tool tip.
    std::function<QString(std::string_view text)> Tip;
    RowButton* button = nullptr;  // opens a dialog for the text; null if there is none
    std::string Tag;

protected:
    bool event(QEvent*) override;

private:
    Colour backColor_ = WindowBackground;
};

/// The check box of a row.
class RowCheck : public QCheckBox {
public:
    explicit RowCheck(QWidget* sheet);
    bool Value() const { return isChecked(); }
    void SetValue(bool value) { setChecked(value); }

    std::string Tag;

protected:
    void paintEvent(QPaintEvent*) override;  // because the style's box is higher than a row
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

/// The list of a row. The mouse wheel changes it only while it has the focus.
class RowCombo : public QComboBox {
public:
    explicit RowCombo(QWidget* frame);
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);  // an index outside of the list selects nothing

    std::string Tag;

protected:
    void wheelEvent(QWheelEvent*) override;
};

/// Clips a combo box, which is higher than a row, to the row's height.
class RowFrame : public Control {
public:
    RowFrame(QWidget* sheet, int index);
    RowCombo cboProp;
};

}  // namespace ornavo
