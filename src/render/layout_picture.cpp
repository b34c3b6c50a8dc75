// SPDX-License-Identifier: MIT
#include "render/layout_picture.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <utility>

#include "base/failure.h"
#include "document/current_skin.h"
#include "document/skin_copy.h"
#include "platform/prompts.h"
#include "render/compose.h"
#include "render/compose_report.h"
#include "render/shape.h"
#include "render/surface.h"

namespace ornavo {

/// All that is current in the program.
class LayoutPicture::Aside {
    /// Keeps messages and cancels all questions.
    class KeptPrompts : public Prompts {
    public:
        std::vector<std::string> messages;
        Answer Message(std::string_view text, std::string_view, Icon, Buttons) override {
            messages.emplace_back(text);
            return Answer::Ok;
        }
        std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
            return std::nullopt;
        }
        std::optional<std::string> File(const FileQuestion&) override { return std::nullopt; }
        std::optional<Colour> ColourOf(Colour, CustomColours&) override { return std::nullopt; }
        std::optional<Font> FontOf(const Font&, const std::vector<std::string>&) override {
            return std::nullopt;
        }
    };

    /// Sets a variable, and restores it at its end.
    template <class T>
    class Exchanged {
    public:
        Exchanged(T& variable, T now)
            : variable_(variable), before_(std::exchange(variable, std::move(now))) {}
        ~Exchanged() { variable_ = std::move(before_); }
        Exchanged(const Exchanged&) = delete;
        Exchanged& operator=(const Exchanged&) = delete;

    private:
        T& variable_;
        T before_;
    };

public:
    Aside(dbSkinRef skin, std::string_view layoutKey)
        : layout_(objCurrentLayout, skin->dbLayouts->Item(layoutKey)), skin_(objSkin, std::move(skin)) {}
    ~Aside() { UsePrompts(before_); }
    KeptPrompts answers;

private:
    Exchanged<dbLayoutRef> layout_;
    Exchanged<dbSkinRef> skin_;
    Exchanged<CompositionTarget*> form_{TargetForm, nullptr};
    Exchanged<dbLayoutRef> target_{TargetLayout, nullptr};
    Exchanged<Frame> frame_{TargetFrame, {}};
    Exchanged<bool> busy_{ComposeBusy, false};
    Exchanged<ToldReport> told_{toldReport(), {}};
    Prompts* before_ = UsePrompts(&answers);
};

/// The window that is composed and drawn.
class LayoutPicture::Window : public QWidget, public CompositionTarget {
public:
    explicit Window(Size size) : host_(*this, nullptr) {
        setAttribute(Qt::WA_DontShowOnScreen);
        resize(size.width, size.height);
        show();
    }
    int ScaleWidth() const override { return width(); }
    int ScaleHeight() const override { return height(); }
    LayoutHost& host() override { return host_; }
    void ShowGrid() override { surface_.ShowGrid(TargetFrame, 1); }
    bool IsBare = false;  // without the surface

protected:
    void paintEvent(QPaintEvent* event) override {
        event->accept();
        if (IsBare) return;
        QPainter painter(this);
        surface_.Paint(painter, rect());
    }

private:
    LayoutHost host_;
    Surface surface_;
};

LayoutPicture::LayoutPicture(const dbSkin& skin, std::string_view layoutKey, Size size, View view)
    : aside_(std::make_unique<Aside>(DeepCopy(skin), layoutKey)), window_(std::make_unique<Window>(size)) {
    const auto compose = view == View::Preview ? ComposePreview : ComposeLayout;
    compose(*window_, objCurrentLayout, skin.SkinWidth, skin.SkinHeight);
}

LayoutPicture::~LayoutPicture() = default;

LayoutHost& LayoutPicture::host() {
    return window_->host();
}

const dbLayout& LayoutPicture::layout() const {
    return *objCurrentLayout;
}

const std::vector<std::string>& LayoutPicture::failures() const {
    return aside_->answers.messages;
}

QImage LayoutPicture::Whole() {
    return window_->grab().toImage();
}

QImage LayoutPicture::Controls(const QRegion& part) {
    QImage picture(window_->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QRegion shape;
    Attempt([&] { shape = ShapeRegion(layout(), TargetFrame); });
    const QRegion shown = part & (shape.isEmpty() ? window_->rect() : shape);
    if (shown.isEmpty()) return picture;
    const Raised bare(window_->IsBare);
    window_->render(&picture, shown.boundingRect().topLeft(), shown, QWidget::DrawChildren);
    return picture;
}

QImage LayoutPicture::Shaped(bool isSoft) {
    QImage picture = Whole();
    const QRegion region = ShapeRegion(layout(), TargetFrame);
    if (region.isEmpty()) return picture;
    QImage cut(picture.size(), QImage::Format_ARGB32_Premultiplied);
    cut.fill(Qt::transparent);
    QPainter painter(&cut);
    if (isSoft) {
        QPainterPath path;
        path.addPolygon(ShapePolygon(layout(), TargetFrame, CornerOf::Region));
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

}  // namespace ornavo
