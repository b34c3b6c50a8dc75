// SPDX-License-Identifier: MIT
#include "platform/tile_button.h"

#include <QMouseEvent>
#include <QPainter>
#include <array>

#include "platform/tile_cache.h"
#include "platform/tile_movie.h"

namespace ornavo {
namespace {

constexpr int FirstRepeat = 300, NextRepeat = 100;  // milliseconds
constexpr int LargePart = 4;  // a control is large from this part of its parent's area on
enum Kind { Normal, Over, Down };

}  // namespace

/// What was drawn last, and the state of the mouse and of the animation.
struct TileButton::Look {
    /// One of the button's pictures, plain or animated.
    struct Source {
        PictureRef picture;
        std::string animated;
        bool IsEmpty() const { return animated.empty() && (!picture || picture->image().isNull()); }
        bool operator==(const Source&) const = default;
    };
    TileState state;
    TileLayers layers;
    std::array<Source, 3> sources;  // by Kind
    std::unique_ptr<TileMovie> movie;
    QImage frame;  // finished picture of the movie's current frame; null until painted
    Size frameSize;
    QTimer repeat;
    bool over = false;
    bool pressed = false;
    bool inside = false;

    /// The picture for the state of the mouse; the normal one if there is none.
    const Source& Shown() const {
        const Kind kind = pressed && inside ? Down : over ? Over : Normal;
        return sources[kind].IsEmpty() ? sources[Normal] : sources[kind];
    }
    const QImage* ShownImage() const {
        if (movie) return &movie->Frame();
        const Source& shown = Shown();
        return shown.picture ? &shown.picture->image() : nullptr;
    }
};

TileButton::TileButton(QWidget* parent, std::string name, int index)
    : Control(parent, std::move(name), index), look_(std::make_unique<Look>()) {
    look_->repeat.setParent(this);
    connect(&look_->repeat, &QTimer::timeout, this, [this] {
        look_->repeat.setInterval(NextRepeat);
        if (events()) events()->Repeat(*this);
    });
}

TileButton::~TileButton() {
    look_->repeat.setParent(nullptr);  // it is destroyed with the look
}

bool TileButton::IsAnimatedGIF(const std::string& path) const {
    return ornavo::IsAnimatedGIF(path);
}

Colour TileButton::TransparentColor() const {
    const Look::Source& normal = look_->sources[Normal];
    if (look_->movie && look_->movie->Path() == normal.animated)
        return KeyColourOf(look_->state, look_->movie->Frame());
    return KeyColourOf(look_->state, normal.picture ? normal.picture->image() : QImage());
}

void TileButton::Refresh() {
    // An animated picture is preferred to the plain one.
    const auto source = [](const PictureRef& picture, const std::string& animated) {
        return Look::Source{animated.empty() ? picture : nullptr, animated};
    };
    std::array<Look::Source, 3> sources = {source(Picture, AniPicture), source(PictureOver, AniPictureOver),
                                           source(PictureDown, AniPictureDown)};
    const bool fileChanged = look_->movie && look_->movie->IsStale();
    if (State == look_->state && Elements == look_->layers && sources == look_->sources && !fileChanged)
        return;
    look_->state = State;
    look_->layers = Elements;
    look_->sources = std::move(sources);
    look_->frame = QImage();
    if (fileChanged) look_->movie.reset();
    ShowSource();
    update();
}

/// Starts or stops the animation: it runs if the shown picture is animated and the control visible.
void TileButton::ShowSource() {
    const std::string& path = look_->Shown().animated;
    if (!look_->movie || look_->movie->Path() != path) {
        look_->movie.reset();
        look_->frame = QImage();
        if (!path.empty())
            look_->movie = std::make_unique<TileMovie>(path, [this] {
                look_->frame = QImage();
                update();
            });
    }
    if (look_->movie) look_->movie->Run(isVisible());
    TellOpaque();
}

/// Tells Qt whether what is behind needn't be painted. It keeps account of the places of such controls, which
/// is worth it only for a large one.
void TileButton::TellOpaque() {
    const QSize room = parentWidget() ? parentWidget()->size() : QSize();
    const bool isLarge =
        LargePart * std::int64_t{width()} * height() >= std::int64_t{room.width()} * room.height();
    const PictureRef& picture = look_->Shown().picture;
    setAttribute(Qt::WA_OpaquePaintEvent,
                 isLarge && IsOpaque(look_->state, picture ? picture->image() : QImage()));
}

/// Takes over the state of the mouse and shows the picture for it.
void TileButton::FollowMouse(bool over, bool pressed, bool inside) {
    const Look::Source* before = &look_->Shown();
    look_->over = over;
    look_->pressed = pressed;
    look_->inside = inside;
    if (&look_->Shown() == before) return;
    ShowSource();
    update();
}

void TileButton::SetBackColor(Colour colour) {
    State.BackColor = colour;
    Control::SetBackColor(colour);
    if (look_->state.BackColor == colour) return;
    look_->state.BackColor = colour;
    update();
}

void TileButton::Reset() {
    State = TileState();
    Elements.Clear();
    Picture = PictureOver = PictureDown = nullptr;
    AniPicture.clear(), AniPictureOver.clear(), AniPictureDown.clear();
    Repeats = false;
    SetMousePointer(PointerDefault);
}

bool TileButton::IsRunning() const {
    return look_->movie && look_->movie->IsRunning();
}

void TileButton::paintEvent(QPaintEvent*) {
    const Size size = {width(), height()};
    const int scale = std::max(1, static_cast<int>(std::ceil(devicePixelRatioF())));
    const QImage* image = look_->ShownImage();
    std::shared_ptr<const QImage> finished;
    if (look_->movie && (look_->frame.isNull() || look_->frameSize != size)) {
        look_->frame = FinishedPicture(*image, look_->state, size, scale);
        look_->frameSize = size;
    }
    if (!look_->movie) finished = FinishedTile(look_->Shown().picture, look_->state, size, scale);
    QPainter painter(this);
    PaintTile(painter, look_->state, look_->layers, size, image,
              look_->movie ? &look_->frame : finished.get());
}

void TileButton::enterEvent(QEnterEvent* event) {
    FollowMouse(true, look_->pressed, look_->inside);
    Control::enterEvent(event);
}

void TileButton::leaveEvent(QEvent* event) {
    FollowMouse(false, look_->pressed, look_->inside);
    Control::leaveEvent(event);
}

void TileButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        FollowMouse(look_->over, true, true);
        if (Repeats) look_->repeat.start(FirstRepeat);
    }
    Control::mousePressEvent(event);
}

void TileButton::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) FollowMouse(look_->over, true, true);
    Control::mouseDoubleClickEvent(event);
}

void TileButton::mouseMoveEvent(QMouseEvent* event) {
    if (look_->pressed) FollowMouse(look_->over, true, rect().contains(event->position().toPoint()));
    Control::mouseMoveEvent(event);
}

void TileButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        look_->repeat.stop();
        FollowMouse(rect().contains(event->position().toPoint()), false, false);
    }
    Control::mouseReleaseEvent(event);
}

void TileButton::showEvent(QShowEvent*) {
    if (look_->movie) look_->movie->Run(true);
}

void TileButton::hideEvent(QHideEvent*) {
    look_->repeat.stop();
    FollowMouse(false, false, false);  // a hidden control gets no release event
    if (look_->movie) look_->movie->Run(false);
}

void TileButton::resizeEvent(QResizeEvent*) {
    TellOpaque();
    update();
}

}  // namespace ornavo
