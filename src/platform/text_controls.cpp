// SPDX-License-Identifier: MIT
#include "platform/text_controls.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

#include "platform/fonts.h"

namespace ornavo {

TextBox::TextBox(QWidget* parent, std::string name)
    : Control(parent, std::move(name)), edit_(new QLineEdit(this)) {
    edit_->setFrame(false);
    edit_->setContextMenuPolicy(Qt::PreventContextMenu);
    edit_->setMouseTracking(true);
    edit_->installEventFilter(this);
    setFocusProxy(edit_);
    SetFont({});
    SetForeColor(0);
    SetBackColor(Rgb(255, 255, 255));
}

void TextBox::SetFont(const ornavo::Font& font) {
    font_ = font;
    const QFont screen = ScreenFont(font);
    if (edit_->font() != screen) edit_->setFont(screen);
}

void TextBox::SetForeColor(Colour colour) {
    Paint(QPalette::Text, colour);
}

void TextBox::SetBackColor(Colour colour) {
    Control::SetBackColor(colour);
    Paint(QPalette::Base, colour);
}

void TextBox::Paint(QPalette::ColorRole role, Colour colour) {
    QPalette palette = edit_->palette();
    const QColor wanted = ScreenColour(colour);
    if (palette.color(role) == wanted && edit_->testAttribute(Qt::WA_SetPalette)) return;
    palette.setColor(role, wanted);
    edit_->setPalette(palette);
}

void TextBox::SetBorderStyle(int style) {
    if (style == borderStyle_) return;
    borderStyle_ = style;
    PlaceEdit();
    update();
}

void TextBox::SetText(std::string_view text) {
    edit_->setText(ShownText(font_, text));
    edit_->setCursorPosition(0);
}

void TextBox::PlaceEdit() {
    const int edge = borderStyle_ ? 1 : 0;
    edit_->setGeometry(rect().adjusted(edge, edge, -edge, -edge));
}

void TextBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ScreenColour(BackColor()));
    if (!borderStyle_) return;
    painter.fillRect(0, 0, width(), 1, ScreenColour(ColourOf(0x80000010)));
    painter.fillRect(0, 0, 1, height(), ScreenColour(ColourOf(0x80000010)));
    painter.fillRect(0, height() - 1, width(), 1, ScreenColour(ColourOf(0x80000014)));
    painter.fillRect(width() - 1, 0, 1, height(), ScreenColour(ColourOf(0x80000014)));
}

void TextBox::resizeEvent(QResizeEvent*) {
    PlaceEdit();
}

bool TextBox::eventFilter(QObject* watched, QEvent* event) {
    using Handler = void (TextBox::*)(QMouseEvent*);
    Handler handler = nullptr;
    if (event->type() == QEvent::MouseButtonPress) handler = &TextBox::mousePressEvent;
    if (event->type() == QEvent::MouseMove) handler = &TextBox::mouseMoveEvent;
    if (event->type() == QEvent::MouseButtonRelease) handler = &TextBox::mouseReleaseEvent;
    if (event->type() == QEvent::MouseButtonDblClick) handler = &TextBox::mouseDoubleClickEvent;
    if (watched != edit_ || !handler) return Control::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    QMouseEvent here(mouse->type(), mouse->position() + edit_->pos(), mouse->globalPosition(),
                     mouse->button(), mouse->buttons(), mouse->modifiers());
    (this->*handler)(&here);
    // In a read-only text, the mouse does not select either.
    if (edit_->isReadOnly()) event->accept();
    return edit_->isReadOnly();
}

}  // namespace ornavo
