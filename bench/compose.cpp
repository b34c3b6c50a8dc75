// SPDX-License-Identifier: MIT
// Composing a layout again, compared with hiding, placing, raising, showing and painting as many plain
// widgets; the same with the panel and its sample; and the redraw after an edit. A frame has 16 ms.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include "document/codes.h"
#include "document/current_skin.h"
#include "render/compose.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/redraw.h"
#include "render/search_letters.h"
#include "render/surface.h"

namespace ornavo {
namespace {

constexpr int Width = 1024, Height = 768, TileWidth = 60, TileHeight = 40;

Rect PlaceOf(int i) {
    return {i * 37 % (Width - TileWidth), i * 53 % (Height - TileHeight), TileWidth, TileHeight};
}

class Window : public QWidget, public CompositionTarget {
public:
    Window() : host_(*this, nullptr) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(Width, Height);
        show();
        QCoreApplication::processEvents();
    }
    int ScaleWidth() const override { return width(); }
    int ScaleHeight() const override { return height(); }
    LayoutHost& host() override { return host_; }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::gray); }

private:
    LayoutHost host_;
};

class PlainWidget : public QWidget {
public:
    PlainWidget(QWidget* parent, const QPixmap& picture) : QWidget(parent), picture_(picture) {}

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, picture_); }

private:
    QPixmap picture_;
};

/// The names of the skin's pictures: one for all; as the files are called; in another case; of files that are
/// not there.
enum Names { OnePicture, Exact, Upper, Gone };
constexpr int PictureCount = 300;

/// A skin with `count` buttons, every second with a caption, all with the same picture or with three pictures
/// each.
class Skin {
public:
    explicit Skin(int count, bool withPanel = false, Names names = OnePicture) {
        objSkin->SetBasePath(folder_.path().toStdString());
        objSkin->SkinName = "Bench";
        objSkin->SkinWidth = Width;
        objSkin->SkinHeight = Height;
        QDir(folder_.path()).mkdir("Bench");
        QImage picture(32, 32, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        picture.save(folder_.filePath("Bench/tile.bmp"));
        for (int i = 0; i < PictureCount && (names == Exact || names == Upper); ++i)
            picture.save(folder_.filePath(QStringLiteral("Bench/tile%1.bmp").arg(i)));
        objCurrentLayout = std::make_shared<dbLayout>();
        objCurrentLayout->Key = "Bench";
        for (int i = 1; i <= count; ++i) {
            dbLayoutElement& e =
                *objCurrentLayout->dbLayoutElements->Add(i, std::to_string(i), TypeButton, 0);
            const Rect at = PlaceOf(i);
            e.LeftX = at.left, e.TopY = at.top, e.WidthX = at.width, e.HeightY = at.height;
            e.LockLeft = e.LockTop = true;
            e.PicNormal = "tile.bmp";
            if (i % 2 == 0) e.Caption = "Play";
            if (names == OnePicture) continue;
            std::string* const pictures[] = {&e.PicNormal, &e.PicOver, &e.PicDown};
            for (int field = 0; field < 3; ++field)
                *pictures[field] = std::string(names == Upper ? "TILE" : "tile")
                                       .append(std::to_string((3 * i + field) % PictureCount))
                                       .append(".bmp");
        }
        if (withPanel) AddPanel(count + 1);
    }

private:
    static void AddPanel(int order) {
        dbLayoutElement& main = *objCurrentLayout->dbLayoutElements->Add(order, "Main", TypeMain, 0);
        main.WidthX = Width * 3 / 4;
        main.HeightY = Height * 3 / 4;
        main.LockLeft = main.LockTop = true;
        for (const char* key :
             {"SL_Picture", "SL_PictureOver", "SL_PictureDown", "SO_Picture", "KBN_Picture"})
            objSkin->dbSkinPrefs->Item(key)->value = "tile.bmp";
    }

    QTemporaryDir folder_;
};

void ComposeAgain(benchmark::State& state, Names names) {
    const Skin skin(static_cast<int>(state.range(0)), false, names);
    Window window;
    for (auto _ : state) {
        ComposeLayout(window, objCurrentLayout, Width, Height);
        QCoreApplication::processEvents();
    }
}

void ComposeWithPanel(benchmark::State& state) {
    const Skin skin(static_cast<int>(state.range(0)), true);
    Window window;
    for (auto _ : state) {
        ComposeLayout(window, objCurrentLayout, Width, Height);
        QCoreApplication::processEvents();
    }
}

/// The redraw of one element after an edit of its place.
void RedrawOne(benchmark::State& state) {
    const Skin skin(static_cast<int>(state.range(0)), true);
    Window window;
    ComposeLayout(window, objCurrentLayout, Width, Height);
    QCoreApplication::processEvents();
    dbLayoutElement& element = *objCurrentLayout->dbLayoutElements->Item("2");
    for (auto _ : state) {
        element.LeftX = element.LeftX == 1 ? 2 : 1;
        RedrawElement(element);
        QCoreApplication::processEvents();
    }
}

/// The redraw and the painting of one part of the sample after an edit that changes all of it.
void SampleAgain(benchmark::State& state, void (*part)(), const char* edited) {
    const Skin skin(0, true);
    Window window;
    ComposeLayout(window, objCurrentLayout, Width, Height);
    QCoreApplication::processEvents();
    Value& value = objSkin->dbSkinPrefs->Item(edited)->value;
    for (auto _ : state) {
        value = value == Value(1) ? 2 : 1;
        part();
        QCoreApplication::processEvents();
    }
}

void PlainWidgets(benchmark::State& state) {
    Window window;
    QPixmap picture(TileWidth, TileHeight);
    picture.fill(Qt::darkCyan);
    std::vector<QWidget*> widgets;
    for (int i = 0; i < state.range(0); ++i) widgets.push_back(new PlainWidget(&window, picture));
    for (auto _ : state) {
        for (QWidget* widget : widgets) widget->hide();
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            const Rect at = PlaceOf(static_cast<int>(i) + 1);
            widgets[i]->setGeometry(at.left, at.top, at.width, at.height);
            widgets[i]->raise();
            widgets[i]->show();
        }
        QCoreApplication::processEvents();
    }
}

BENCHMARK_CAPTURE(ComposeAgain, one_picture, OnePicture)->Arg(60)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ComposeAgain, exact, Exact)->Arg(60)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ComposeAgain, upper, Upper)->Arg(60)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ComposeAgain, gone, Gone)->Arg(60)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(ComposeWithPanel)->Arg(60)->Unit(benchmark::kMillisecond);
BENCHMARK(RedrawOne)->Arg(60)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SampleAgain, letters, SetupSearchLetters, "SL_ShadowDistance")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SampleAgain, places, LayoutKioskPanel, "IN_Margin")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SampleAgain, styles, SetupKioskPanel, "SO_ShadowDistance")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainWidgets)->Arg(60)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ornavo
