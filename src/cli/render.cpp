// SPDX-License-Identifier: MIT
// Draws the picture of a layout by the code of canvas and preview, without a screen.
#include <QFile>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "cli/open_skin.h"
#include "platform/clock.h"
#include "platform/form.h"
#include "platform/png_bytes.h"
#include "platform/prompts.h"
#include "platform/shown.h"
#include "playback/info_show.h"
#include "render/compose.h"
#include "render/layout_host.h"
#include "render/shape.h"
#include "render/surface.h"

namespace ornavo {
namespace {

/// Prints messages on the error stream and cancels all questions.
class ConsolePrompts : public Prompts {
public:
    ConsolePrompts() { UsePrompts(this); }
    ~ConsolePrompts() override { UsePrompts(nullptr); }
    Answer Message(std::string_view text, std::string_view, Icon, Buttons) override {
        Tell(std::string(text));
        return Answer::Ok;
    }
    std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
        return std::nullopt;
    }
    std::optional<std::string> File(const FileQuestion&) override { return std::nullopt; }
    std::optional<Colour> ColourOf(Colour, CustomColours&) override { return std::nullopt; }
    std::optional<Font> FontOf(const Font&, const std::vector<std::string>&) override { return std::nullopt; }
};

/// The window that is composed and drawn.
class OffscreenTarget : public QWidget, public CompositionTarget {
public:
    explicit OffscreenTarget(Size size) : host_(*this, nullptr) {
        resize(size.width, size.height);
        show();
    }
    int ScaleWidth() const override { return width(); }
    int ScaleHeight() const override { return height(); }
    LayoutHost& host() override { return host_; }
    void ShowGrid() override { surface_.ShowGrid(TargetFrame, 1); }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        surface_.Paint(painter, rect());
        event->accept();
    }

private:
    LayoutHost host_;
    Surface surface_;
};

/// The picture with everything outside of the shape transparent. Soft edges are anti-aliased along the
/// polygon, hard ones follow the window's region.
QImage Cut(const QImage& picture, const dbLayout& layout, bool soft) {
    const QRegion region = ShapeRegion(layout, TargetFrame);
    if (region.isEmpty()) return picture;
    QImage cut(picture.size(), QImage::Format_ARGB32_Premultiplied);
    cut.fill(Qt::transparent);
    QPainter painter(&cut);
    if (soft) {
        QPainterPath path;
        path.addPolygon(ShapePolygon(layout, TargetFrame, CornerOf::Region));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(picture));
        painter.drawPath(path);
    } else {
        painter.setClipRegion(region);
        painter.drawImage(0, 0, picture);
    }
    return cut;
}

/// A clock that stands at the time of --time, HH:MM:SS; without a time the real clock stays in use.
class GivenClock : public Clock {
public:
    explicit GivenClock(const std::string& text) {
        if (text.empty()) return;
        now_ = QDateTime(QDate(2000, 1, 1), QTime::fromString(Shown(text), "HH:mm:ss"));
        if (!now_.isValid()) throw UsageError("--time is HH:MM:SS");
        UseClock(this);
    }
    ~GivenClock() override { UseClock(nullptr); }
    QDateTime Now() const override { return now_; }

private:
    QDateTime now_;
};

bool OneOf(const Arguments& arguments, const std::string& name, const std::string& first,
           const std::string& second) {
    const std::string value = arguments.Get(name, first);
    if (value != first && value != second) throw UsageError("--" + name + " is " + first + " or " + second);
    return value == first;
}

std::string Words(const Size& size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

/// The size to draw in pixels. A skin larger than a window can be is reduced to that size, with a message.
Size SizeToDraw(const Arguments& arguments) {
    const Size whole = NamedSize(arguments, MostWindowPixels);
    if (whole.width < 1 || whole.height < 1)
        throw Failure(Failure::InvalidCall, "Render", "The skin has no size; give one with --size.");
    const Size size = {std::min(whole.width, MostWindowPixels), std::min(whole.height, MostWindowPixels)};
    if (size != whole) Tell("the skin is " + Words(whole) + " pixels; it is composed at " + Words(size));
    return size;
}

}  // namespace

int Render(const Arguments& arguments) {
    const std::string out = arguments.Need("out");
    const bool preview = OneOf(arguments, "view", "preview", "canvas");
    const bool soft = OneOf(arguments, "edge", "soft", "hard");
    const GivenClock clock(arguments.Get("time", ""));
    OpenNamedSkin(arguments.operands[0]);
    objCurrentLayout = NamedLayout(arguments);
    const Size size = SizeToDraw(arguments);
    const ConsolePrompts answers;
    OffscreenTarget target(size);
    (preview ? ComposePreview : ComposeLayout)(target, objCurrentLayout, objSkin->SkinWidth,
                                               objSkin->SkinHeight);
    if (preview) InfoShow().Begin(target.host(), *objCurrentLayout);
    QImage picture = target.grab().toImage();
    if (preview) picture = Cut(picture, *objCurrentLayout, soft);
    const std::string bytes = PngBytesOf(picture);
    QFile file(Shown(out));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), std::ssize(bytes)) < 0 || !file.flush())
        throw Failure(Failure::PathError, "Render", out + " can't be written.");
    return 0;
}

}  // namespace ornavo
