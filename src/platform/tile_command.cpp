// SPDX-License-Identifier: MIT
#include "platform/tile_command.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace ornavo {
namespace {

constexpr int Edge = 5, Gap = 5;  // pixels
constexpr int TextFlags = Qt::TextShowMnemonic | Qt::TextSingleLine;

/// Tells a screen reader the button's name and that it can be pressed.
class AccessibleCommand : public QAccessibleWidget {
public:
    explicit AccessibleCommand(TileCommand* command) : QAccessibleWidget(command, QAccessible::Button) {}
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !widget()->accessibleName().isEmpty())
            return QAccessibleWidget::text(kind);
        const QString& caption = Command().Caption();
        return caption.isEmpty() ? widget()->toolTip() : QString(caption).remove('&');
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction())
            Command().PerformClick();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    TileCommand& Command() const { return *static_cast<TileCommand*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
    auto* command = qobject_cast<TileCommand*>(object);
    return command ? new AccessibleCommand(command) : nullptr;
}

bool PressesButton(int key) {
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

TileCommand::TileCommand(QWidget* parent, std::string name, int index)
    : Control(parent, std::move(name), index) {
    static const bool told = (QAccessible::installFactory(MakeAccessible), true);
    static_cast<void>(told);
    setFocusPolicy(Qt::StrongFocus);
}

void TileCommand::SetCaption(const QString& caption) {
    if (mnemonic_) releaseShortcut(mnemonic_);
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    mnemonic_ = keys.isEmpty() ? 0 : grabShortcut(keys);
    caption_ = caption;
    updateGeometry();
    update();
}

void TileCommand::SetPicture(const QString& file, int size) {
    picture_ = QIcon(file);
    pictureSize_ = size;
    updateGeometry();
    update();
}

void TileCommand::SetPictureAbove(bool above) {
    above_ = above;
    updateGeometry();
    update();
}

void TileCommand::PerformClick() {
    if (isEnabled()) emit Click();
}

QSize TileCommand::sizeHint() const {
    const QSize text =
        caption_.isEmpty() ? QSize(0, 0) : fontMetrics().size(TextFlags, caption_) + QSize(0, 2);
    const int gap = pictureSize_ && !caption_.isEmpty() ? (above_ ? 1 : Gap) : 0;
    const QSize inner = above_
                            ? QSize(std::max(pictureSize_, text.width()), pictureSize_ + gap + text.height())
                            : QSize(pictureSize_ + gap + text.width(), std::max(pictureSize_, text.height()));
    return inner + QSize(2 * Edge, 2 * Edge - 2);
}

/// Paints the picture and returns the area left for the caption.
QRect TileCommand::PaintPicture(QPainter& painter, const QRect& area) const {
    if (!pictureSize_) return area;
    QRect place(0, 0, pictureSize_, pictureSize_);
    QRect rest = area;
    if (caption_.isEmpty()) {
        place.moveCenter(area.center());
    } else if (above_) {
        place.moveTopLeft({area.left() + (area.width() - pictureSize_) / 2, area.top()});
        rest.setTop(place.bottom() + 1);
    } else {
        place.moveTopLeft({area.left(), area.top() + (area.height() - pictureSize_) / 2});
        rest.setLeft(place.right() + 1 + Gap);
    }
    // QIcon never enlarges a picture, so a larger one is taken from the file with twice the pixels.
    const bool grown = picture_.actualSize(place.size()) != place.size();
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture_.pixmap(place.size(), grown ? 2 : devicePixelRatioF(), mode));
    return rest;
}

void TileCommand::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton face;
    face.initFrom(this);
    face.state.setFlag(QStyle::State_MouseOver, over_ && isEnabled());
    const bool sunken = held_ != NotHeld && inside_;
    face.state.setFlag(sunken ? QStyle::State_Sunken : QStyle::State_Raised);
    painter.drawControl(QStyle::CE_PushButtonBevel, face);
    QRect area = rect().adjusted(Edge, Edge - 1, -Edge, 1 - Edge);
    if (sunken) area.translate(1, 1);
    const QRect rest = PaintPicture(painter, area);
    const int align = pictureSize_ && !above_ ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
    painter.drawItemText(rest, align | TextFlags, palette(), isEnabled(), caption_, QPalette::ButtonText);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

void TileCommand::Hold(Held held, bool inside) {
    if (held == held_ && inside == inside_) return;
    held_ = held;
    inside_ = inside;
    update();
}

void TileCommand::enterEvent(QEnterEvent* event) {
    over_ = true;
    update();
    Control::enterEvent(event);
}

void TileCommand::leaveEvent(QEvent* event) {
    over_ = false;
    update();
    Control::leaveEvent(event);
}

void TileCommand::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Hold(ByMouse, true);
    Control::mousePressEvent(event);
}

// The second press of a double click counts as another press.
void TileCommand::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void TileCommand::mouseMoveEvent(QMouseEvent* event) {
    if (held_ == ByMouse) Hold(ByMouse, rect().contains(event->position().toPoint()));
    Control::mouseMoveEvent(event);
}

void TileCommand::mouseReleaseEvent(QMouseEvent* event) {
    Control::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || held_ != ByMouse) return;
    Hold(NotHeld, false);
    if (rect().contains(event->position().toPoint())) PerformClick();
}

void TileCommand::keyPressEvent(QKeyEvent* event) {
    if (!PressesButton(event->key())) return Control::keyPressEvent(event);
    if (!event->isAutoRepeat() && held_ == NotHeld) Hold(ByKey, true);
}

void TileCommand::keyReleaseEvent(QKeyEvent* event) {
    if (!PressesButton(event->key())) return Control::keyReleaseEvent(event);
    if (event->isAutoRepeat() || held_ != ByKey) return;
    Hold(NotHeld, false);
    PerformClick();
}

void TileCommand::focusInEvent(QFocusEvent*) {
    update();
}

void TileCommand::focusOutEvent(QFocusEvent*) {
    if (held_ == ByKey) Hold(NotHeld, false);
    update();
}

void TileCommand::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        Hold(NotHeld, false);
        update();
    }
    Control::changeEvent(event);
}

bool TileCommand::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut) return Control::event(event);
    const auto* shortcut = static_cast<QShortcutEvent*>(event);
    if (shortcut->shortcutId() != mnemonic_) return Control::event(event);
    if (shortcut->isAmbiguous())
        setFocus(Qt::ShortcutFocusReason);
    else
        PerformClick();
    return true;
}

}  // namespace ornavo
