// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "editor/settings_keys.h"
#include "magnifier/frm_magnifier.h"
#include "support/failure_number.h"

namespace ornavo::testing {
namespace {

TEST(Pieces, LieAboutThePointerAndWithinTheScreens) {
    const std::vector<QRect> two = {{0, 0, 100, 100}, {100, 20, 100, 100}},
                             left = {{0, 0, 100, 100}, {-100, 0, 100, 100}}, one = {{0, 0, 1600, 1200}};
    const struct {
        const char* name;
        QPoint pointer;
        QSize picture;
        int zoom;
        std::vector<QRect> screens;
        std::vector<Piece> pieces;
    } rows[] = {{"middle", {100, 80}, {40, 20}, 4, one, {{0, {95, 78, 10, 5}, {0, 0, 40, 20}}}},
                {"top left", {0, 0}, {40, 40}, 4, one, {{0, {0, 0, 5, 5}, {20, 20, 20, 20}}}},
                {"end", {1599, 1199}, {40, 40}, 4, one, {{0, {1594, 1194, 6, 6}, {0, 0, 24, 24}}}},
                {"half to even", {100, 100}, {42, 46}, 4, one, {{0, {95, 94, 11, 12}, {0, 0, 44, 48}}}},
                {"as it is", {100, 100}, {9, 9}, 1, one, {{0, {96, 96, 9, 9}, {0, 0, 9, 9}}}},
                {"half a pixel", {100, 100}, {10, 10}, 32, one, {{0, {100, 100, 1, 1}, {0, 0, 32, 32}}}},
                {"seam",
                 {100, 20},
                 {80, 80},
                 8,
                 two,
                 {{0, {95, 15, 5, 10}, {0, 0, 40, 80}}, {1, {100, 20, 5, 5}, {40, 40, 40, 40}}}},
                {"left of the first", {-50, 5}, {40, 40}, 4, left, {{1, {-55, 0, 10, 10}, {0, 0, 40, 40}}}},
                {"beyond all", {5000, 5000}, {40, 40}, 4, one, {}},
                {"no room", {100, 100}, {0, 20}, 4, one, {}}};
    for (const auto& row : rows)
        EXPECT_EQ(PiecesOf(row.pointer, row.picture, row.zoom, row.screens), row.pieces) << row.name;
}

/// A plane where every pixel tells its place.
class Plane : public PixelSource {
public:
    QPoint Pointer() override { return pointer; }
    std::vector<QRect> Screens() override { return {{0, 0, 100, 100}}; }
    QImage Grab(int, const QRect& area) override {
        ++grabs;
        if (refuses) return {};
        QImage image(area.size(), QImage::Format_RGB32);
        for (int y = 0; y < area.height(); ++y)
            for (int x = 0; x < area.width(); ++x) image.setPixel(x, y, At(area.x() + x, area.y() + y));
        return image;
    }
    QRgb At(int x, int y) const { return qRgb(x, y, blue); }

    QPoint pointer = {50, 50};
    int blue = 0, grabs = 0;
    bool refuses = false;
};

class MagnifyTest : public ::testing::Test, public QObject {
protected:
    MagnifyTest() : magnify(nullptr, desktop, own) {
        magnify.SetBorderStyle(0);
        magnify.resize(40, 40);
        magnify.tmr.setInterval(1000000);
        magnify.installEventFilter(this);
        own.blue = 200;
    }
    void Show() {
        magnify.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&magnify));
        QCoreApplication::processEvents();
        paints = desktop.grabs = 0;
    }
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    void Fire() {
        if (!magnify.tmr.isActive()) return;
        QTimerEvent event(magnify.tmr.timerId());
        QCoreApplication::sendEvent(&magnify.tmr, &event);
        QCoreApplication::processEvents();
    }
    QRgb Shown(int x, int y) { return magnify.grab().toImage().pixel(x, y); }
    Plane desktop, own;
    Magnify magnify;
    int paints = 0;
};

TEST_F(MagnifyTest, EachPixelBecomesABlockAndOnlyAChangeIsPainted) {
    magnify.SetZoom(8);
    Show();
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(Shown(x, y), desktop.At(48 + x / 8, 48 + y / 8)) << x << ' ' << y;
    paints = 0;
    for (int i = 0; i < 5; ++i) Fire();
    EXPECT_TRUE(desktop.grabs == 5 && paints == 0);
    desktop.blue = 7;
    Fire();
    EXPECT_EQ(paints, 1);
    desktop.pointer = {0, 99};
    Fire();
    const QRgb background = qRgb(0x80, 0x80, 0x80);
    EXPECT_TRUE(Shown(15, 0) == background && Shown(39, 24) == background);
    EXPECT_EQ(Shown(16, 0), desktop.At(0, 97));
    EXPECT_EQ(Shown(39, 23), desktop.At(2, 99));
    magnify.SetZoom(16);
    EXPECT_EQ(desktop.grabs, 7) << "the next tick shows it";
    desktop.refuses = true;
    Fire();
    EXPECT_EQ(Shown(0, 0), own.At(49, 49)) << "where the desktop refuses our own windows are shown";
    own.refuses = true;
    own.pointer = {10, 10};
    Fire();
    EXPECT_EQ(Shown(0, 0), own.At(49, 49)) << "nothing can be read: the last picture stays";
}

TEST_F(MagnifyTest, AFrozenOneKeepsItsPicture) {
    Show();
    magnify.SetFrozen(true);
    EXPECT_EQ(desktop.grabs, 1) << "one last capture";
    desktop.blue = 7;
    Fire();
    EXPECT_FALSE(magnify.tmr.isActive());
    EXPECT_EQ(Shown(0, 0), qRgb(40, 40, 0));
    magnify.hide();
    magnify.show();
    EXPECT_FALSE(magnify.tmr.isActive());
    magnify.SetFrozen(false);
    EXPECT_TRUE(magnify.tmr.isActive());
    EXPECT_EQ(Shown(0, 0), qRgb(40, 40, 7));
    magnify.hide();
    EXPECT_FALSE(magnify.tmr.isActive()) << "nobody looks";
}

TEST_F(MagnifyTest, ZoomsAreSixAndTheWheelStepsThroughThem) {
    EXPECT_EQ(magnify.Zoom(), 2);
    for (const int wrong : {0, 3, 64, -2})
        EXPECT_EQ(FailureNumber([&] { magnify.SetZoom(wrong); }), 380) << wrong;
    EXPECT_EQ(magnify.Zoom(), 2);
    magnify.SetZoom(32);
    const auto turn = [&](int eighths) {
        QWheelEvent event({5, 5}, {5, 5}, {}, {0, eighths}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&magnify, &event);
        return magnify.Zoom();
    };
    for (const auto& [eighths, zoom] :
         {std::pair{120, 32}, {-60, 32}, {-60, 16}, {-360, 2}, {-360, 1}, {120, 2}})
        EXPECT_EQ(turn(eighths), zoom) << eighths;
}

TEST(FrmMagnifier, StandsWhereItWasAndMarksTheMiddle) {
    Plane desktop, own;
    SaveSetting("Magnifier", "Width", "wide");
    frm_Magnifier form(nullptr, desktop, own);
    form.Open();
    EXPECT_EQ(QRect(form.pos(), form.size()), QRect(2, 420, 179, 138));
    EXPECT_EQ(form.Magnify1.Zoom(), 4);
    const std::pair<QSize, QPoint> rows[] = {
        {{200, 160}, {100, 80}}, {{172, 140}, {88, 72}}, {{150, 146}, {76, 72}}};
    for (const auto& [size, mark] : rows) {
        form.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(form.Picture1.pos(), mark) << size.width();
        EXPECT_EQ(form.Magnify1.geometry(), QRect({}, size));
    }
    form.Magnify1.StepZoom(1);
    QTest::keyClick(&form, Qt::Key_Space);
    EXPECT_TRUE(form.Magnify1.Frozen());
    const auto* state = form.findChild<QLabel*>("lbl_State");
    ASSERT_NE(state, nullptr);
    EXPECT_EQ(state->text(), "8x frozen");
    EXPECT_EQ(state->geometry().bottomLeft(), form.rect().bottomLeft());
    QTest::keyClick(&form, Qt::Key_Space);
    EXPECT_FALSE(form.Magnify1.Frozen());
    EXPECT_EQ(state->text(), "8x");
    form.move(300, 200);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    form.close();
    EXPECT_EQ((Rect{settings::MagnifierLeft.Read(), settings::MagnifierTop.Read(),
                    settings::MagnifierWidth.Read(), settings::MagnifierHeight.Read()}),
              (Rect{4500, 3000, (150 + 8) * 15, (146 + 29) * 15}));
    EXPECT_FALSE(form.Magnify1.tmr.isActive());
}

/// Two windows of one plain colour each; the one that the mouse moves over is read.
TEST(OwnWindowPixels, ReadTheWindowUnderThePointer) {
    OwnWindowPixels pixels;
    EXPECT_EQ(pixels.Pointer(), QPoint());
    EXPECT_TRUE(pixels.Screens().empty());
    QWidget windows[2];
    const QColor colours[] = {Qt::red, Qt::blue};
    for (int i = 0; i < 2; ++i) {
        windows[i].setPalette(colours[i]);
        windows[i].setGeometry(50 + 200 * i, 50, 60 + i, 40);
        windows[i].show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&windows[i]));
        QTest::mouseMove(windows[i].windowHandle(), {20 + i, 10});
        QCoreApplication::processEvents();
        EXPECT_EQ(pixels.Pointer(), QPoint(20 + i, 10));
        EXPECT_EQ(pixels.Screens(), (std::vector<QRect>{{0, 0, 60 + i, 40}}));
        const QImage seen = pixels.Grab(0, {10, 5, 7, 6});
        ASSERT_EQ(seen.size(), QSize(7, 6));
        EXPECT_EQ(seen.pixelColor(3, 3), windows[i].palette().color(QPalette::Window));
    }
    windows[1].hide();
    EXPECT_TRUE(pixels.Screens().empty());
}

}  // namespace
}  // namespace ornavo::testing
