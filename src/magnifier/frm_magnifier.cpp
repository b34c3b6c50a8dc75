// SPDX-License-Identifier: MIT
#include "magnifier/frm_magnifier.h"

#include <QKeyEvent>
#include <QPainter>

#include "base/failure.h"
#include "base/numbers.h"
#include "editor/settings_keys.h"

namespace ornavo {
namespace {

constexpr int FirstZoom = 4;
constexpr int MarkGrid = 4;  // device pixels, the same at each zoom

/// The middle of `length` device pixels, rounded to the grid.
int MarkPlace(int length) {
    return static_cast<int>(RoundHalfEven(length / 2.0 / MarkGrid)) * MarkGrid;
}

}  // namespace

PixelMark::PixelMark(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PixelMark::paintEvent(QPaintEvent*) {
    // One device pixel wide, in two colours that are visible on any background.
    const int size = MarkGrid;
    QImage frame(size, size, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    for (int at = 0; at < size * size; ++at) {
        const int x = at % size, y = at / size;
        const bool edge = x == 0 || y == 0 || x == size - 1 || y == size - 1;
        if (edge) frame.setPixelColor(x, y, (x + y) % 2 ? Qt::white : Qt::red);
    }
    frame.setDevicePixelRatio(devicePixelRatioF());
    QPainter(this).drawImage(0, 0, frame);
}

frm_Magnifier::frm_Magnifier(QWidget* owner) : frm_Magnifier(owner, desktopPixels_, ownPixels_) {}

frm_Magnifier::frm_Magnifier(QWidget* owner, PixelSource& desktop, PixelSource& own)
    // It also stays above the preview, which does not own it and may fill the screen.
    : Form(owner, "frm_Magnifier", Qt::Tool | Qt::WindowStaysOnTopHint),
      Magnify1(this, desktop, own),
      Picture1(this),
      lbl_State(this) {
    setWindowTitle(QStringLiteral("Magnifier"));
    Magnify1.setObjectName(QStringLiteral("Magnify1"));
    Magnify1.setAccessibleName(QStringLiteral("The screen about the pointer, enlarged"));
    Magnify1.setToolTip(QStringLiteral(
        "The wheel changes the zoom, the space bar freezes the picture, Escape closes the window"));
    connect(&Magnify1, &Magnify::StateChanged, this, &frm_Magnifier::ShowState);
    Magnify1.SetBorderStyle(0);
    Magnify1.SetZoom(FirstZoom);
    Picture1.setObjectName(QStringLiteral("Picture1"));
    lbl_State.setObjectName(QStringLiteral("lbl_State"));
    lbl_State.setAutoFillBackground(true);
    lbl_State.setMargin(2);
    lbl_State.setAttribute(Qt::WA_TransparentForMouseEvents);
}

void frm_Magnifier::Open() {
    Rect place;
    const std::pair<int*, const Setting<int>*> sides[] = {{&place.left, &settings::MagnifierLeft},
                                                          {&place.top, &settings::MagnifierTop},
                                                          {&place.width, &settings::MagnifierWidth},
                                                          {&place.height, &settings::MagnifierHeight}};
    for (const auto& [side, setting] : sides) {
        *side = setting->standard;
        Attempt([&, side = side, setting = setting] { *side = setting->Read(); });
    }
    MoveTwips(place);
    show();
    activateWindow();
}

void frm_Magnifier::ShowState() {
    lbl_State.setText(QString::number(Magnify1.Zoom()) + QLatin1String(Magnify1.Frozen() ? "x frozen" : "x"));
    lbl_State.adjustSize();
    lbl_State.move(0, ScaleHeight() - lbl_State.height());
}

void frm_Magnifier::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (event->key() != Qt::Key_Space) return Form::keyPressEvent(event);
    if (!event->isAutoRepeat()) Magnify1.SetFrozen(!Magnify1.Frozen());
}

void frm_Magnifier::Form_Resize() {
    const qreal ratio = devicePixelRatioF();
    const auto middle = [&](int length) {
        return static_cast<int>(MarkPlace(static_cast<int>(length * ratio)) / ratio);
    };
    Magnify1.setGeometry(0, 0, ScaleWidth(), ScaleHeight());
    Picture1.setGeometry(middle(ScaleWidth()), middle(ScaleHeight()), MarkGrid, MarkGrid);
    ShowState();
}

void frm_Magnifier::Form_Unload() {
    const Rect place = TwipBounds();
    settings::MagnifierLeft.Write(place.left);
    settings::MagnifierTop.Write(place.top);
    settings::MagnifierWidth.Write(place.width);
    settings::MagnifierHeight.Write(place.height);
}

}  // namespace ornavo
