// SPDX-License-Identifier: MIT
// Composing a layout again, compared with painting as many rectangles with the same pictures and captions;
// the same where the names of the pictures aren't exact; and the redraw after an edit.
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "document/codes.h"
#include "document/current_skin.h"
#include "judge.h"
#include "platform/startup.h"
#include "render/compose.h"
#include "render/kiosk_panel.h"
#include "render/layout_host.h"
#include "render/redraw.h"
#include "render/search_letters.h"
#include "render/surface.h"

namespace ornavo::bench {
namespace {

constexpr int Width = 1024, Height = 768, TileWidth = 60, TileHeight = 40;

Rect PlaceOf(int i) {
    return {i * 37 % (Width - TileWidth), i * 53 % (Height - TileHeight), TileWidth, TileHeight};
}

constexpr int PictureCount = 300;

QImage TilePicture() {
    QImage picture(32, 32, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    return picture;
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

/// A window that paints rectangles with the pictures and captions of as many elements.
class PaintedRectangles : public QWidget {
public:
    explicit PaintedRectangles(int count) : count_(count) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(Width, Height);
        for (int i = 0; i < PictureCount; ++i) pictures_.push_back(QPixmap::fromImage(TilePicture()));
        show();
        QCoreApplication::processEvents();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::gray);
        for (int i = 1; i <= count_; ++i) {
            const Rect at = PlaceOf(i);
            const QRect place(at.left, at.top, at.width, at.height);
            painter.fillRect(place, Qt::lightGray);
            painter.drawPixmap(place, pictures_[static_cast<std::size_t>(3 * i % PictureCount)]);
            if (i % 2 == 0) painter.drawText(place, Qt::AlignCenter, QStringLiteral("Play"));
        }
    }

private:
    int count_;
    std::vector<QPixmap> pictures_;
};

/// The names of the skin's pictures: as the files are called; in another case; of files that are not there.
enum Names { Exact, Upper, Gone };

/// A skin with `count` buttons with three pictures each, every second with a caption.
class Skin {
public:
    explicit Skin(int count, Names names = Exact, bool withPanel = false) {
        MakeCurrent();
        objSkin->SetBasePath(folder_.path().toStdString());
        objSkin->SkinName = "Bench";
        objSkin->SkinWidth = Width;
        objSkin->SkinHeight = Height;
        QDir(folder_.path()).mkdir("Bench");
        for (int i = 0; i < PictureCount && names != Gone; ++i)
            TilePicture().save(folder_.filePath(QStringLiteral("Bench/tile%1.bmp").arg(i)));
        layout_->Key = "Bench";
        for (int i = 1; i <= count; ++i) AddButton(i, names == Upper ? "TILE" : "tile");
        if (withPanel) AddPanel(count + 1);
    }
    void MakeCurrent() const {
        objSkin = skin_;
        objCurrentLayout = layout_;
    }

private:
    void AddButton(int i, const char* picture) const {
        dbLayoutElement& e = *layout_->dbLayoutElements->Add(i, std::to_string(i), TypeButton, 0);
        const Rect at = PlaceOf(i);
        e.LeftX = at.left, e.TopY = at.top, e.WidthX = at.width, e.HeightY = at.height;
        e.LockLeft = e.LockTop = true;
        if (i % 2 == 0) e.Caption = "Play";
        std::string* const pictures[] = {&e.PicNormal, &e.PicOver, &e.PicDown};
        for (int field = 0; field < 3; ++field)
            *pictures[field] =
                std::string(picture).append(std::to_string((3 * i + field) % PictureCount)).append(".bmp");
    }
    void AddPanel(int order) const {
        dbLayoutElement& main = *layout_->dbLayoutElements->Add(order, "Main", TypeMain, 0);
        main.WidthX = Width * 3 / 4;
        main.HeightY = Height * 3 / 4;
        main.LockLeft = main.LockTop = true;
        for (const char* key :
             {"SL_Picture", "SL_PictureOver", "SL_PictureDown", "SO_Picture", "KBN_Picture"})
            objSkin->dbSkinPrefs->Item(key)->value = "tile0.bmp";
    }

    QTemporaryDir folder_;
    dbSkinRef skin_ = std::make_shared<dbSkin>();
    dbLayoutRef layout_ = std::make_shared<dbLayout>();
};

/// A skin in a window of its own.
struct Stage {
    explicit Stage(int count, Names names = Exact, bool withPanel = false) : skin(count, names, withPanel) {
        Compose();
    }
    void Compose() {
        ComposeLayout(window, objCurrentLayout, Width, Height);
        QCoreApplication::processEvents();
    }
    Skin skin;
    Window window;
};

/// Composes the layout again and paints it.
Round Composes(int count, Names names = Exact) {
    const auto stage = std::make_shared<Stage>(count, names);
    return [=] {
        stage->skin.MakeCurrent();
        return Cpu([&] { stage->Compose(); });
    };
}

Round Paints(int count) {
    const auto window = std::make_shared<PaintedRectangles>(count);
    return [=] {
        return Cpu([&] {
            window->update();
            QCoreApplication::processEvents();
        });
    };
}

/// The redraw and the painting of one part after an edit that changes all of it.
Round Redraws(const std::shared_ptr<Stage>& stage, const std::function<void()>& edit,
              const std::function<void()>& redraw) {
    return [=] {
        stage->skin.MakeCurrent();
        stage->Compose();  // the window of this stage is the target from now on
        edit();
        return Cpu([&] {
            redraw();
            QCoreApplication::processEvents();
        });
    };
}

/// One element after an edit of its place.
Round RedrawsElement(const std::shared_ptr<Stage>& stage) {
    return Redraws(
        stage, [] { ++objCurrentLayout->dbLayoutElements->Item("2")->LeftX; },
        [] { RedrawElement(*objCurrentLayout->dbLayoutElements->Item("2")); });
}

/// A part of the sample after an edit of a preference.
Row Sample(const std::shared_ptr<Stage>& stage, const char* work, void (*part)(), const char* edited) {
    const auto edit = [=] {
        Value& value = objSkin->dbSkinPrefs->Item(edited)->value;
        value = value == Value(1) ? 2 : 1;
    };
    return {work, Redraws(stage, edit, part), "a frame", nullptr, 16.7};
}

int Run(int count, char** words) {
    const char* const rectangles = "as many painted rectangles";
    const char* const exact = "exact names";
    const auto panel = std::make_shared<Stage>(60, Exact, true);
    return Judge({{"compose 60 elements", Composes(60), rectangles, Paints(60), 4.2,
                   "was 4: a quarter asks the disk whether the pictures are still the same"},
                  {"60, names in another case", Composes(60, Upper), exact, Composes(60), 1.2},
                  {"60, pictures gone", Composes(60, Gone), exact, Composes(60), 1.2},
                  {"compose 500 elements", Composes(500), rectangles, Paints(500), 8},
                  {"500, names in another case", Composes(500, Upper), exact, Composes(500), 1.2},
                  {"500, pictures gone", Composes(500, Gone), exact, Composes(500), 1.2},
                  {"redraw of one element of 60", RedrawsElement(panel), "composing them", Composes(60), 0.2},
                  Sample(panel, "sample: letters", SetupSearchLetters, "SL_ShadowDistance"),
                  Sample(panel, "sample: places", LayoutKioskPanel, "IN_Margin"),
                  Sample(panel, "sample: styles", SetupKioskPanel, "SO_ShadowDistance")},
                 count, words);
}

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // no window is measured, but what is done for one
    ornavo::PrepareProcess();
    QApplication application(count, words);
    ornavo::InitCommonControls(application);
    return ornavo::bench::Run(count, words);
}
