// SPDX-License-Identifier: MIT
#include "properties/row_controls.h"

#include <QApplication>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QValidator>
#include <QWheelEvent>

#include "base/failure.h"
#include "platform/accessible.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int ListRows = 24;      // rows of an open list without scrolling
constexpr int LeastStretch = 60;  // percent of the normal width that is still readable

/// Replaces line breaks and other control characters by blanks, because a value is one line of the file.
class OneLine : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override {
        for (QChar& letter : text)
            if (letter.category() == QChar::Other_Control) letter = ' ';
        return Acceptable;
    }
};

bool IsDark(const QColor& colour) {
    return qGray(colour.rgb()) < 128;
}

/// Hides a caption from screen readers, which read it as the name of the row's value.
class AccessibleLabel : public QAccessibleWidget {
public:
    explicit AccessibleLabel(RowLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Label().text().trimmed() : QString();
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (!Label().IsHeading()) state.invisible = true;
        return state;
    }

private:
    const RowLabel& Label() const { return *static_cast<RowLabel*>(widget()); }
};

}  // namespace

RowLabel::RowLabel(QWidget* sheet) : QLabel(sheet) {
    TellReaders<RowLabel, AccessibleLabel>();
    setObjectName(QStringLiteral("lbl_Prop"));
    setTextFormat(Qt::PlainText);
    setAutoFillBackground(true);
    hide();
}

void RowLabel::Show(const QString& caption, bool heading, int width) {
    heading_ = heading;
    QFont face = QApplication::font();
    face.setBold(heading);
    const int wanted = QFontMetrics(face).horizontalAdvance(caption);
    if (wanted > width)
        face.setStretch(std::max((face.stretch() ? face.stretch() : 100) * width / wanted, LeastStretch));
    setFont(face);
    setText(caption);
    const bool cut = QFontMetrics(face).horizontalAdvance(caption) > width;
    setToolTip(cut ? PlainTip(caption.trimmed()) : QString());
    setBackgroundRole(heading ? QPalette::Mid : QPalette::Window);
}

RowText::RowText(QWidget* sheet) : QLineEdit(sheet) {
    setObjectName(QStringLiteral("tbx_Prop"));
    setValidator(new OneLine(this));
    setFrame(false);
    hide();
}

void RowText::SetText(std::string_view text) {
    setText(Shown(text));
    setCursorPosition(0);
}

void RowText::SetBackColor(Colour colour) {
    if (colour == backColor_) return;
    if (TranslateColor(colour) == -1) throw Failure(Failure::InvalidValue, "tbx_Prop");
    backColor_ = colour;
    if (colour == WindowBackground) return setPalette(QPalette());
    const QColor ground = ScreenColour(colour);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, ground);
    colours.setColor(QPalette::Text, IsDark(ground) ? Qt::white : Qt::black);
    setPalette(colours);
}

bool RowText::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) setToolTip(Tip ? PlainTip(Tip(Text())) : QString());
    return QLineEdit::event(event);
}

RowCheck::RowCheck(QWidget* sheet) : QCheckBox(sheet) {
    setObjectName(QStringLiteral("chk_Boolean"));
    hide();
}

void RowCheck::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton box;
    initStyleOption(&box);
    painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, box);
}

RowCombo::RowCombo(QWidget* frame) : QComboBox(frame) {
    setObjectName(QStringLiteral("cboProp"));
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(ListRows);
    // It is clipped and so has no visible edge; it gets the background of the text boxes.
    QPalette colours = palette();
    colours.setBrush(QPalette::Button, colours.base());
    setPalette(colours);
}

void RowCombo::SetListIndex(int index) {
    setCurrentIndex(index < count() ? index : -1);
}

void RowCombo::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

RowFrame::RowFrame(QWidget* sheet, int index) : Control(sheet, "cboPic", index), cboProp(this) {
    hide();
}

}  // namespace ornavo
